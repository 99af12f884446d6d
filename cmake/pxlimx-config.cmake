include(${CMAKE_CURRENT_LIST_DIR}/pxlimx-targets.cmake)
