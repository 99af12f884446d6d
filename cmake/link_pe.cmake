# How the two libraries are linked for Windows: a .def file names what they export, and the OpenMP runtime, with what it needs
# itself, lies beside them. It is shared, not linked in: one runtime has to see the parallel regions of the whole process.
function(pxl_export library definitions)
    set_property(TARGET ${library} APPEND PROPERTY LINK_DEPENDS ${definitions})
    target_link_options(${library} PRIVATE ${definitions})
    set_target_properties(${library} PROPERTIES PREFIX "" RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}
                                                ARCHIVE_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR} IMPORT_PREFIX lib)
endfunction()

pxl_export(pxlcore ${PROJECT_SOURCE_DIR}/core/pxlcore.def)
pxl_export(pxlimx ${PXL_GENERATED}/pxlimx.def)

set(PXL_RUNTIME)
foreach(name libgomp-1.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
    execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${name} OUTPUT_VARIABLE path
                    OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    file(COPY ${path} DESTINATION ${PROJECT_BINARY_DIR})
    list(APPEND PXL_RUNTIME ${PROJECT_BINARY_DIR}/${name})
endforeach()
