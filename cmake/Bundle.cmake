# The application bundle has one layout on every system, in the build tree and installed:
# Folioforge.app/Contents/{MacOS, Resources, Info.plist}.

set(FOLIOFORGE_BUNDLE "${CMAKE_BINARY_DIR}/Folioforge.app/Contents")
set(FOLIOFORGE_BUNDLE_BIN "${FOLIOFORGE_BUNDLE}/MacOS")
set(FOLIOFORGE_BUNDLE_RESOURCES "${FOLIOFORGE_BUNDLE}/Resources")

# Puts the program `target` into the bundle.
function(folioforge_program target)
    set_target_properties(${target} PROPERTIES
        RUNTIME_OUTPUT_DIRECTORY "${FOLIOFORGE_BUNDLE_BIN}")
endfunction()

# Keeps a copy of the files in the bundle's resources; the target is named folioforge_resources_NAME.
function(folioforge_resources name)
    set(copies)
    foreach(file IN LISTS ARGN)
        get_filename_component(base "${file}" NAME)
        set(copy "${FOLIOFORGE_BUNDLE_RESOURCES}/${base}")
        add_custom_command(OUTPUT "${copy}"
            COMMAND ${CMAKE_COMMAND} -E copy "${file}" "${copy}"
            DEPENDS "${file}")
        list(APPEND copies "${copy}")
    endforeach()
    add_custom_target(folioforge_resources_${name} ALL DEPENDS ${copies})
endfunction()
