# folioforge_tests(ROOM UNITS ... LINKS ...): one test program for each <Unit>Test.cpp of this
# folder, named ROOM.Unit in CTest.
function(folioforge_tests room)
    cmake_parse_arguments(TESTS "" "" "UNITS;LINKS" ${ARGN})
    foreach(unit IN LISTS TESTS_UNITS)
        set(target test_${room}_${unit})
        add_executable(${target} ${unit}Test.cpp)
        set_target_properties(${target} PROPERTIES AUTOMOC ON)
        target_link_libraries(${target} PRIVATE
            ${TESTS_LINKS} folioforge_test_support Qt6::Test folioforge_compiler)
        add_test(NAME ${room}.${unit} COMMAND ${target})
        set_tests_properties(${room}.${unit} PROPERTIES
            TIMEOUT 300
            ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8")
    endforeach()
endfunction()
