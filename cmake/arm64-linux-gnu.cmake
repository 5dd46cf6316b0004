# SPDX-License-Identifier: Apache-2.0
# Builds for arm64 on a Debian of another kind, and runs the tests in an emulator:
#   cmake --preset dev --toolchain cmake/arm64-linux-gnu.cmake
# After `dpkg --add-architecture arm64` that takes g++-aarch64-linux-gnu, qt6-base-dev-tools, qt6-tools-dev-tools,
# qt6-l10n-tools and qemu-user, and for arm64 the packages of scripts/install-deps that end in -dev. QEMU before 8
# starts no other programs for Qt.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR aarch64)
set(CMAKE_CXX_COMPILER aarch64-linux-gnu-g++)
set(CMAKE_CROSSCOMPILING_EMULATOR qemu-aarch64)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(ENV{PKG_CONFIG_LIBDIR} /usr/lib/aarch64-linux-gnu/pkgconfig:/usr/share/pkgconfig)
