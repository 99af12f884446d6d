# What is installed, in two parts: `runtime`, what programs need when they run, and `development`. All of it finds its parts
# relative to itself, so the installed tree can be moved.
include(CMakePackageConfigHelpers)

set(PXL_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/pxlimx)
install(TARGETS pxlimx pxlcore EXPORT pxlimx-targets
        RUNTIME COMPONENT runtime
        LIBRARY COMPONENT runtime
        ARCHIVE COMPONENT development)
install(FILES LICENSE TYPE DOC COMPONENT runtime)
if(WIN32) # the OpenMP runtime that lies beside the DLLs, and its notices
    install(FILES ${PXL_RUNTIME} TYPE BIN COMPONENT runtime)
    install(DIRECTORY cmake/notices TYPE DOC COMPONENT runtime)
endif()

install(FILES include/pxli.h include/pxlcore.h include/pxl_linkage.h TYPE INCLUDE COMPONENT development)
install(EXPORT pxlimx-targets NAMESPACE pxlimx:: DESTINATION ${PXL_CMAKE_DIR} COMPONENT development)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/pxlimx-config-version.cmake COMPATIBILITY SameMinorVersion)
install(FILES cmake/pxlimx-config.cmake ${PROJECT_BINARY_DIR}/pxlimx-config-version.cmake
        DESTINATION ${PXL_CMAKE_DIR} COMPONENT development)

cmake_path(RELATIVE_PATH CMAKE_INSTALL_PREFIX BASE_DIRECTORY ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig
           OUTPUT_VARIABLE PXL_PREFIX_FROM_PC)
configure_file(cmake/pxlimx.pc.in ${PROJECT_BINARY_DIR}/pxlimx.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/pxlimx.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT development)
