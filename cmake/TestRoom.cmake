# SPDX-License-Identifier: Apache-2.0
# Qt Test names the folders of each target on its command lines. No test asks for them, and without
# them the targets share what is compiled ahead, and checkouts share a compiler cache.
set_target_properties(Qt6::Test PROPERTIES INTERFACE_COMPILE_DEFINITIONS QT_TESTLIB_LIB)

# The sanitizers watch the program alone, so that a sanitized build can link what a plain one compiled.
set(FOLIOFORGE_TESTS_OF "" CACHE PATH
    "Build folder, already built and tested, whose objects of tests are linked instead of compiled again")
if(FOLIOFORGE_TESTS_OF)
    set(FOLIOFORGE_MADE_FOR_TESTS "${FOLIOFORGE_TESTS_OF}/made")
else()
    set(FOLIOFORGE_MADE_FOR_TESTS "${CMAKE_BINARY_DIR}/made")
endif()

# folioforge_test_needs(TEST SCRIPT): the test reads what this script of its folder writes with other
# programs; where the objects of tests are another build's, what it wrote for that one.
function(folioforge_test_needs test script)
    if(FOLIOFORGE_TESTS_OF)
        return()
    endif()
    # The system's own Python is the one that packages are installed for.
    find_program(FOLIOFORGE_PYTHON python3 PATHS /opt/homebrew/bin /usr/bin NO_DEFAULT_PATH)
    find_program(FOLIOFORGE_PYTHON python3)
    cmake_path(GET test EXTENSION unit)
    string(REPLACE "${unit}" ".${script}" maker "${test}")
    add_test(NAME ${maker} COMMAND sh -c "rm -rf \"$2\" && exec \"$0\" \"$1\" \"$2\"" "${FOLIOFORGE_PYTHON}"
        "${CMAKE_CURRENT_SOURCE_DIR}/${script}" "${FOLIOFORGE_MADE_FOR_TESTS}/${script}")
    # Labelled as plain tests are: a sanitized build reads what the plain one made.
    set_tests_properties(${maker} PROPERTIES
        FIXTURES_SETUP ${script} TIMEOUT 300 COST 20 LABELS plain)
    set_tests_properties(${test} PROPERTIES FIXTURES_REQUIRED ${script})
endfunction()

# folioforge_test_sources(TARGET SOURCE ...): TARGET is made of these, with what HEADERS names compiled
# ahead, or of the objects that FOLIOFORGE_TESTS_OF has of them.
function(folioforge_test_sources target)
    set(list "tests/${target}.objects")
    if(FOLIOFORGE_TESTS_OF)
        set_property(DIRECTORY APPEND PROPERTY
            CMAKE_CONFIGURE_DEPENDS "${FOLIOFORGE_TESTS_OF}/${list}")
        file(STRINGS "${FOLIOFORGE_TESTS_OF}/${list}" objects)
        target_sources(${target} PRIVATE ${objects})
        set_target_properties(${target} PROPERTIES LINKER_LANGUAGE CXX)
    else()
        cmake_parse_arguments(TEST "" "" "HEADERS" ${ARGN})
        target_sources(${target} PRIVATE ${TEST_UNPARSED_ARGUMENTS})
        if(TEST_HEADERS)
            target_precompile_headers(${target} ${TEST_HEADERS})
        endif()
        file(GENERATE OUTPUT "${CMAKE_BINARY_DIR}/${list}" CONTENT
            "$<JOIN:$<FILTER:$<TARGET_OBJECTS:${target}>,INCLUDE,\\.o$>,\n>\n")
    endif()
endfunction()

# folioforge_tests(ROOM UNITS ... [SOURCES ...] LINKS ... [HEADERS ...] [APPLICATION CLASS]
# [LONG ...] [PLAIN ...]): the test program of a room, test_ROOM, made of each <Unit>Test.cpp of this folder
# and of SOURCES. CTest runs it once for each unit, named ROOM.Unit. HEADERS are compiled ahead, instead of
# those of folioforge_test_support; NONE are in a room of few units. CLASS is that of the application
# object, else QCoreApplication. The units that take longest are named LONG: CTest begins with them.
#
# Units that show more without sanitizers, such as what limits memory, are named PLAIN and have that label.
function(folioforge_tests room)
    cmake_parse_arguments(TESTS "" "APPLICATION" "UNITS;LONG;PLAIN;SOURCES;LINKS;HEADERS" ${ARGN})
    if(NOT TESTS_APPLICATION)
        set(TESTS_APPLICATION QCoreApplication)
    endif()
    set(target test_${room})
    add_executable(${target})
    set(sources ${TESTS_SOURCES} "${PROJECT_SOURCE_DIR}/tests/support/TestMain.cpp")
    foreach(unit IN LISTS TESTS_UNITS)
        # One moc run each: AUTOMOC reads every file again and compiles one more.
        set(moc "${CMAKE_CURRENT_BINARY_DIR}/${unit}Test.moc")
        qt_generate_moc(${unit}Test.cpp "${moc}")
        list(APPEND sources ${unit}Test.cpp "${moc}")
    endforeach()
    if(TESTS_HEADERS STREQUAL "NONE")
        folioforge_test_sources(${target} ${sources})
    elseif(TESTS_HEADERS)
        folioforge_test_sources(${target} ${sources} HEADERS PRIVATE ${TESTS_HEADERS})
    else()
        folioforge_test_sources(${target} ${sources} HEADERS REUSE_FROM folioforge_test_support)
    endif()
    target_include_directories(${target} PRIVATE "${CMAKE_CURRENT_BINARY_DIR}")
    target_link_libraries(${target} PRIVATE
        folioforge_compiler ${TESTS_LINKS} folioforge_test_support Qt6::Test)
    target_compile_definitions(${target} PRIVATE FOLIOFORGE_TEST_APPLICATION=${TESTS_APPLICATION})
    foreach(unit IN LISTS TESTS_UNITS)
        add_test(NAME ${room}.${unit} COMMAND ${target} ${unit})
        set_tests_properties(${room}.${unit} PROPERTIES
            TIMEOUT 300
            ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8;LANGUAGE=")
        if(unit IN_LIST TESTS_PLAIN)
            set_tests_properties(${room}.${unit} PROPERTIES LABELS plain)
        endif()
    endforeach()
    foreach(unit IN LISTS TESTS_LONG)
        set_tests_properties(${room}.${unit} PROPERTIES COST 10)
    endforeach()
endfunction()
