# How the two libraries are linked where programs are ELF files: a version script chooses and versions what they export.
function(pxl_export library map)
    set_property(TARGET ${library} APPEND PROPERTY LINK_DEPENDS ${map})
    target_link_options(${library} PRIVATE -Wl,--version-script=${map} -Wl,-z,defs)
    set_target_properties(${library} PROPERTIES LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR} INSTALL_RPATH $ORIGIN)
endfunction()

pxl_export(pxlcore ${PROJECT_SOURCE_DIR}/core/pxlcore.map)
pxl_export(pxlimx ${PXL_GENERATED}/pxlimx.map)
