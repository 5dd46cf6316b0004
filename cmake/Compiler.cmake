# SPDX-License-Identifier: Apache-2.0
# Warnings, sanitizers and the compiler cache, for every target of this tree.

add_library(folioforge_compiler INTERFACE)

target_compile_options(folioforge_compiler INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion
    -Wnon-virtual-dtor -Woverloaded-virtual -Wold-style-cast -Wcast-qual
    -Wduplicated-cond -Wlogical-op
    # Clang and its tools read the same command lines and lack the two above.
    -Wno-unknown-warning-option
    # GCC takes files that are compiled together for headers.
    -Wno-subobject-linkage)
if(FOLIOFORGE_WERROR)
    target_compile_options(folioforge_compiler INTERFACE -Werror)
endif()

# What the program itself is made of. The sanitizers watch its code alone: to have them in the tests'
# own code as well would compile them twice.
add_library(folioforge_program INTERFACE)
target_link_libraries(folioforge_program INTERFACE folioforge_compiler)

if(FOLIOFORGE_SANITIZE)
    target_compile_options(folioforge_program INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    # To look at each pointer before it is used takes a third of the time that building takes, and
    # AddressSanitizer stops at a null pointer anyway. The fuzz targets, which read strangers' bytes,
    # have it.
    if(NOT FOLIOFORGE_FUZZ)
        target_compile_options(folioforge_program INTERFACE -fno-sanitize=null,alignment)
    endif()
    target_link_options(folioforge_compiler INTERFACE -fsanitize=address,undefined)
endif()

# What makes a fault in the reading of a hostile file end the program instead of handing it over. The
# programs read other people's bytes, so every build has it, the one that is tested among them.
# Inline functions of the library come from whichever object is linked first, a test's as well.
target_compile_definitions(folioforge_compiler INTERFACE _GLIBCXX_ASSERTIONS)
# Files of any size, on systems of 32 bits too. Libraries that ask for it agree so with what is compiled
# ahead.
target_compile_definitions(folioforge_compiler INTERFACE _FILE_OFFSET_BITS=64)
# libc++ 18 and 19 keep std::jthread and std::stop_token behind it.
target_compile_definitions(folioforge_compiler INTERFACE
    $<$<CXX_COMPILER_ID:Clang,AppleClang>:_LIBCPP_ENABLE_EXPERIMENTAL>)
if(UNIX AND NOT APPLE)
    include(CheckPIESupported)
    check_pie_supported()
    set(CMAKE_POSITION_INDEPENDENT_CODE ON)
    target_compile_options(folioforge_program INTERFACE
        -fstack-protector-strong -fstack-clash-protection -fno-plt
        $<$<STREQUAL:${CMAKE_SYSTEM_PROCESSOR},x86_64>:-fcf-protection=full>
        $<$<STREQUAL:${CMAKE_SYSTEM_PROCESSOR},aarch64>:-mbranch-protection=standard>)
    target_link_options(folioforge_program INTERFACE -Wl,-z,relro,-z,now,-z,noexecstack)
    if(NOT FOLIOFORGE_SANITIZE AND NOT FOLIOFORGE_FUZZ) # AddressSanitizer watches the same calls.
        target_compile_options(folioforge_program INTERFACE -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=3)
    endif()
endif()

# Coverage for the fuzzer; the targets of tests/fuzz link the fuzzer itself.
if(FOLIOFORGE_FUZZ)
    target_compile_options(folioforge_program INTERFACE -fsanitize=fuzzer-no-link)
endif()

# Equal sources give equal programs, wherever they lie.
if(NOT CMAKE_BUILD_TYPE STREQUAL "Debug")
    target_compile_options(folioforge_compiler INTERFACE "-ffile-prefix-map=${CMAKE_SOURCE_DIR}=.")
endif()

# Qt's implicit casts from bytes to text hide encoding mistakes.
target_compile_definitions(folioforge_compiler INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING QT_NO_KEYWORDS
    QT_STRICT_ITERATORS)
