# SPDX-License-Identifier: Apache-2.0
# The libraries the product stands on; docs/architecture.md says why each was taken.

set(parts Core)
set(optional_parts)
if(FOLIOFORGE_WINDOW)
    list(APPEND parts Gui Widgets Svg)
    list(APPEND optional_parts LinguistTools) # Makes the texts of other languages.
    if(FOLIOFORGE_PREVIEW)
        list(APPEND optional_parts Pdf)
    endif()
endif()
if(FOLIOFORGE_TESTS)
    list(APPEND parts Test)
endif()
if(UNIX AND NOT APPLE)
    if(FOLIOFORGE_TESTS)
        list(APPEND parts DBus) # The end-to-end test speaks to the screen.
    elseif(FOLIOFORGE_WINDOW)
        list(APPEND optional_parts DBus) # The window speaks to the desktop.
    endif()
endif()
find_package(Qt6 6.4 REQUIRED COMPONENTS ${parts} OPTIONAL_COMPONENTS ${optional_parts})
find_package(Threads REQUIRED)
find_package(PkgConfig REQUIRED)
if(APPLE)
    # Homebrew keeps ICU out of the common folders.
    list(APPEND CMAKE_PREFIX_PATH /opt/homebrew/opt/icu4c /usr/local/opt/icu4c)
endif()

pkg_check_modules(QPDF REQUIRED IMPORTED_TARGET libqpdf>=11.3)
# The library asks which pointer type its users write; standard ones only.
target_compile_definitions(PkgConfig::QPDF INTERFACE POINTERHOLDER_TRANSITION=4)
if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    target_compile_options(PkgConfig::QPDF INTERFACE
        -include "${CMAKE_CURRENT_LIST_DIR}/QpdfJsonForClang.h")
endif()
pkg_check_modules(HARFBUZZ REQUIRED IMPORTED_TARGET harfbuzz>=6 harfbuzz-subset>=6)
pkg_check_modules(ICU REQUIRED IMPORTED_TARGET icu-uc icu-i18n)
pkg_check_modules(FREETYPE REQUIRED IMPORTED_TARGET freetype2)
pkg_check_modules(FONTCONFIG REQUIRED IMPORTED_TARGET fontconfig)
pkg_check_modules(JPEG REQUIRED IMPORTED_TARGET libjpeg)
find_package(GIF 5.1 REQUIRED)
pkg_check_modules(TIFF REQUIRED IMPORTED_TARGET libtiff-4>=4.5)
if(FOLIOFORGE_OPENJPEG)
    pkg_check_modules(OPENJPEG REQUIRED IMPORTED_TARGET libopenjp2>=2.5)
endif()
if(FOLIOFORGE_OPENEXR)
    pkg_check_modules(OPENEXR REQUIRED IMPORTED_TARGET OpenEXR)
endif()
pkg_check_modules(DEFLATE REQUIRED IMPORTED_TARGET libdeflate)
find_package(ZLIB REQUIRED)
