# SPDX-License-Identifier: Apache-2.0
# folioforge_room(NAME [WIDGETS] SOURCES ... LINKS ... PRIVATE_LINKS ... [HEADERS ... | HEADERS_OF ROOM]):
# the static library of one folder of src/, named folioforge_NAME. Headers are included as
# "room/Header.h", and each room's include path holds that room alone, so a room sees only the rooms it
# links to: an arrow that points the wrong way does not compile. WIDGETS marks a room of the window: it
# links Qt Widgets and runs moc and uic. HEADERS are those outside the tree that take long and are
# included by many: where tests are built they are compiled ahead, and a room named HEADERS_OF (files)
# lends what it compiled. In a release and for scripts/lint a file that lacks an include fails.
function(folioforge_room name)
    cmake_parse_arguments(ROOM "WIDGETS" "HEADERS_OF" "SOURCES;LINKS;PRIVATE_LINKS;HEADERS" ${ARGN})
    set(target folioforge_${name})
    if(NOT ROOM_HEADERS_OF)
        set(ROOM_HEADERS_OF files)
    endif()

    set(view "${CMAKE_BINARY_DIR}/rooms/${name}")
    file(MAKE_DIRECTORY "${view}")
    file(CREATE_LINK "${CMAKE_CURRENT_SOURCE_DIR}" "${view}/${name}" SYMBOLIC)

    if(ROOM_SOURCES)
        add_library(${target} STATIC ${ROOM_SOURCES})
        if(ROOM_WIDGETS)
            set_target_properties(${target} PROPERTIES AUTOMOC ON AUTOUIC ON)
            target_link_libraries(${target} PUBLIC Qt6::Widgets)
        endif()
        target_include_directories(${target} PUBLIC "${view}")
        target_link_libraries(${target}
            PUBLIC ${ROOM_LINKS} Qt6::Core
            PRIVATE ${ROOM_PRIVATE_LINKS} folioforge_program)
        if(FOLIOFORGE_TESTS AND NOT FOLIOFORGE_FUZZ)
            # Some libraries ask for it; what is compiled ahead has to have the options of all.
            target_compile_options(${target} PRIVATE -pthread)
            if(ROOM_HEADERS)
                target_precompile_headers(${target} PRIVATE ${ROOM_HEADERS})
            else()
                target_precompile_headers(${target} REUSE_FROM folioforge_${ROOM_HEADERS_OF})
            endif()
        endif()
    else()
        add_library(${target} INTERFACE)
        target_include_directories(${target} INTERFACE "${view}")
        target_link_libraries(${target} INTERFACE ${ROOM_LINKS} Qt6::Core)
    endif()
endfunction()
