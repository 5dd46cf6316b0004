# SPDX-License-Identifier: Apache-2.0
# Qt Test names the folders of each target on its command lines. No test asks for them, and without
# them the targets share what is compiled ahead, and checkouts share a compiler cache.
set_target_properties(Qt6::Test PROPERTIES INTERFACE_COMPILE_DEFINITIONS QT_TESTLIB_LIB)

# folioforge_tests(ROOM UNITS ... [SOURCES ...] LINKS ... [HEADERS ...] [APPLICATION CLASS]
# [LONG ...]): the test program of a room, test_ROOM, made of each <Unit>Test.cpp of this folder and of SOURCES. CTest runs
# it once for each unit, named ROOM.Unit. HEADERS are compiled ahead, instead of those of
# folioforge_test_support. CLASS is that of the application object, else QCoreApplication. The units that
# take longest are named LONG: CTest begins with them.
function(folioforge_tests room)
    cmake_parse_arguments(TESTS "" "APPLICATION" "UNITS;LONG;SOURCES;LINKS;HEADERS" ${ARGN})
    if(NOT TESTS_APPLICATION)
        set(TESTS_APPLICATION QCoreApplication)
    endif()
    set(target test_${room})
    add_executable(${target} ${TESTS_SOURCES} "${PROJECT_SOURCE_DIR}/tests/support/TestMain.cpp")
    target_include_directories(${target} PRIVATE "${CMAKE_CURRENT_BINARY_DIR}")
    target_link_libraries(${target} PRIVATE
        folioforge_compiler ${TESTS_LINKS} folioforge_test_support Qt6::Test)
    target_compile_definitions(${target} PRIVATE FOLIOFORGE_TEST_APPLICATION=${TESTS_APPLICATION})
    if(TESTS_HEADERS)
        target_precompile_headers(${target} PRIVATE ${TESTS_HEADERS})
    else()
        target_precompile_headers(${target} REUSE_FROM folioforge_test_support)
    endif()
    foreach(unit IN LISTS TESTS_UNITS)
        # One moc run each: AUTOMOC reads every file again and compiles one more.
        set(moc "${CMAKE_CURRENT_BINARY_DIR}/${unit}Test.moc")
        qt_generate_moc(${unit}Test.cpp "${moc}")
        target_sources(${target} PRIVATE ${unit}Test.cpp "${moc}")
        add_test(NAME ${room}.${unit} COMMAND ${target} ${unit})
        set_tests_properties(${room}.${unit} PROPERTIES
            TIMEOUT 300
            ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8;LANGUAGE=")
    endforeach()
    foreach(unit IN LISTS TESTS_LONG)
        set_tests_properties(${room}.${unit} PROPERTIES COST 10)
    endforeach()
endfunction()
