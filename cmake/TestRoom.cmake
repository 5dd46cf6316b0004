# folioforge_tests(ROOM UNITS ... LINKS ... HEADERS ...): one test program for each <Unit>Test.cpp of
# this folder, named ROOM.Unit in CTest. HEADERS are those outside the tree that take long and that
# many of the tests include.
function(folioforge_tests room)
    cmake_parse_arguments(TESTS "" "" "UNITS;LINKS;HEADERS" ${ARGN})
    list(LENGTH TESTS_UNITS count)
    list(GET TESTS_UNITS 0 first)
    foreach(unit IN LISTS TESTS_UNITS)
        set(target test_${room}_${unit})
        add_executable(${target} ${unit}Test.cpp)
        # What every test includes takes longer to compile than most tests: once a room is enough.
        if(count GREATER 1 AND unit STREQUAL first)
            target_precompile_headers(${target} PRIVATE
                <QDir> <QFile> <QFileInfo> <QTemporaryDir> <QTest> <algorithm> <string> <vector>
                ${TESTS_HEADERS})
        elseif(count GREATER 1)
            target_precompile_headers(${target} REUSE_FROM test_${room}_${first})
        endif()
        # One moc run each: AUTOMOC reads every file again and compiles one more, a minute in all.
        set(moc "${CMAKE_CURRENT_BINARY_DIR}/${unit}Test.moc")
        qt_generate_moc(${unit}Test.cpp "${moc}")
        target_sources(${target} PRIVATE "${moc}")
        target_include_directories(${target} PRIVATE "${CMAKE_CURRENT_BINARY_DIR}")
        target_link_libraries(${target} PRIVATE
            ${TESTS_LINKS} folioforge_test_support Qt6::Test folioforge_compiler)
        add_test(NAME ${room}.${unit} COMMAND ${target})
        set_tests_properties(${room}.${unit} PROPERTIES
            TIMEOUT 300
            ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8")
    endforeach()
endfunction()
