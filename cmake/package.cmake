# The source archive: `cmake --build build/release --target package_source` leaves pxlimx-<version>.tar.gz there.
set(CPACK_PACKAGE_NAME pxlimx)
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_GENERATOR TGZ)
set(CPACK_SOURCE_GENERATOR TGZ)
set(CPACK_SOURCE_PACKAGE_FILE_NAME pxlimx-${PROJECT_VERSION})
set(CPACK_SOURCE_IGNORE_FILES "^${CMAKE_SOURCE_DIR}/build/" "^${CMAKE_SOURCE_DIR}/\\.git/" /__pycache__/)
include(CPack)
