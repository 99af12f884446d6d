# What is installed: the headers, both libraries, the pkg-config file and the CMake package. All of it finds its parts
# relative to itself, so the installed tree can be moved.
include(CMakePackageConfigHelpers)

set(PXL_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/pxlimx)
install(TARGETS pxlimx pxlcore EXPORT pxlimx-targets)
install(FILES include/pxli.h include/pxlcore.h include/pxl_linkage.h TYPE INCLUDE)
install(EXPORT pxlimx-targets NAMESPACE pxlimx:: DESTINATION ${PXL_CMAKE_DIR})

write_basic_package_version_file(${CMAKE_BINARY_DIR}/pxlimx-config-version.cmake COMPATIBILITY SameMinorVersion)
install(FILES cmake/pxlimx-config.cmake ${CMAKE_BINARY_DIR}/pxlimx-config-version.cmake DESTINATION ${PXL_CMAKE_DIR})

cmake_path(RELATIVE_PATH CMAKE_INSTALL_PREFIX BASE_DIRECTORY ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig
           OUTPUT_VARIABLE PXL_PREFIX_FROM_PC)
configure_file(cmake/pxlimx.pc.in ${CMAKE_BINARY_DIR}/pxlimx.pc @ONLY)
install(FILES ${CMAKE_BINARY_DIR}/pxlimx.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
