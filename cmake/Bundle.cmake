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
