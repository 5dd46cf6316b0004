# SPDX-License-Identifier: Apache-2.0
# The application bundle has one layout on every system, in the build tree and installed:
# Folioforge.app/Contents/{MacOS, Resources, Info.plist}. On Linux it is installed under
# libexec/folioforge, with links to its programs in bin.

include(GNUInstallDirs)

set(FOLIOFORGE_BUNDLE "${CMAKE_BINARY_DIR}/Folioforge.app/Contents")
set(FOLIOFORGE_BUNDLE_BIN "${FOLIOFORGE_BUNDLE}/MacOS")
set(FOLIOFORGE_BUNDLE_RESOURCES "${FOLIOFORGE_BUNDLE}/Resources")

if(APPLE)
    set(FOLIOFORGE_INSTALL_BUNDLE "Folioforge.app/Contents")
else()
    set(FOLIOFORGE_INSTALL_BUNDLE "${CMAKE_INSTALL_LIBEXECDIR}/folioforge/Folioforge.app/Contents")
endif()

# Puts the program `target` into the bundle. A HELPER is started by another program alone and has no
# link in bin.
function(folioforge_program target)
    cmake_parse_arguments(PROGRAM "HELPER" "" "" ${ARGN})
    set_target_properties(${target} PROPERTIES
        RUNTIME_OUTPUT_DIRECTORY "${FOLIOFORGE_BUNDLE_BIN}")
    install(TARGETS ${target} RUNTIME DESTINATION "${FOLIOFORGE_INSTALL_BUNDLE}/MacOS")
    if(NOT APPLE AND NOT PROGRAM_HELPER)
        cmake_path(ABSOLUTE_PATH FOLIOFORGE_INSTALL_BUNDLE BASE_DIRECTORY "${CMAKE_INSTALL_PREFIX}"
            OUTPUT_VARIABLE bundle)
        file(RELATIVE_PATH program "${CMAKE_INSTALL_FULL_BINDIR}" "${bundle}/MacOS/${target}")
        set(link "${CMAKE_CURRENT_BINARY_DIR}/links/${target}")
        file(MAKE_DIRECTORY "${CMAKE_CURRENT_BINARY_DIR}/links")
        file(CREATE_LINK "${program}" "${link}" SYMBOLIC)
        install(FILES "${link}" DESTINATION "${CMAKE_INSTALL_BINDIR}")
    endif()
endfunction()

# Puts `file`, named from the current folder, into the bundle's Resources, or into its subfolder
# FOLDER.
function(folioforge_resource file)
    cmake_parse_arguments(RESOURCE "" "FOLDER" "" ${ARGN})
    cmake_path(GET file FILENAME name)
    configure_file("${file}" "${FOLIOFORGE_BUNDLE_RESOURCES}/${RESOURCE_FOLDER}/${name}" COPYONLY)
    install(FILES "${file}"
        DESTINATION "${FOLIOFORGE_INSTALL_BUNDLE}/Resources/${RESOURCE_FOLDER}")
endfunction()
