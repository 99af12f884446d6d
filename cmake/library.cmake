# The two libraries. Family sources are compiled once per target into namespaces of their own; everything else once.

set(PXL_GENERATED ${CMAKE_BINARY_DIR}/generated)
file(GLOB PXL_API CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/api/*)
set(PXL_SUBSYSTEMS exchange arith filter)
set(PXL_FAMILIES)
foreach(subsystem IN LISTS PXL_SUBSYSTEMS)
    file(GLOB sources CONFIGURE_DEPENDS RELATIVE ${CMAKE_SOURCE_DIR} ${subsystem}/*.cpp)
    list(APPEND PXL_FAMILIES ${sources})
endforeach()

set(PXL_EXPORT_SOURCES ${PXL_GENERATED}/frame_exports.cpp)
foreach(subsystem IN LISTS PXL_SUBSYSTEMS)
    list(APPEND PXL_EXPORT_SOURCES ${PXL_GENERATED}/${subsystem}_exports.cpp)
endforeach()
set(PXL_MEMBER_FILES)
foreach(family IN LISTS PXL_FAMILIES)
    string(REPLACE ".cpp" ".inc" member_file ${family})
    list(APPEND PXL_MEMBER_FILES ${PXL_GENERATED}/members/${member_file})
endforeach()

# The generator keeps the time stamps of files that did not change, so that an entry rebuilds its own family only.
add_custom_command(
    OUTPUT ${PXL_GENERATED}/stamp
    BYPRODUCTS ${PXL_EXPORT_SOURCES} ${PXL_MEMBER_FILES} ${PXL_GENERATED}/member_table.cpp
               ${PXL_GENERATED}/pxlimx.map ${PXL_GENERATED}/pxlimx.def
    COMMAND ${Python3_EXECUTABLE} -B ${CMAKE_SOURCE_DIR}/api/generate.py sources ${PXL_GENERATED}
    COMMAND ${CMAKE_COMMAND} -E touch ${PXL_GENERATED}/stamp
    DEPENDS ${PXL_API}
    COMMENT "Generating from the registry")
add_custom_target(pxl_generate DEPENDS ${PXL_GENERATED}/stamp)

# -ffp-contract=off and no fast-math: results are the same bits on every target. -fno-strict-aliasing: members that move bits
# see the caller's elements as unsigned ones. Nothing here throws, so nothing of the C++ runtime is needed.
set(PXL_CODE_FLAGS -ffp-contract=off -fno-math-errno -fno-strict-aliasing -fno-exceptions -fno-rtti)

function(pxl_objects name)
    add_library(${name} OBJECT ${ARGN})
    add_dependencies(${name} pxl_generate)
    target_link_libraries(${name} PRIVATE pxl_flags OpenMP::OpenMP_CXX)
    target_include_directories(${name} PRIVATE ${PXL_GENERATED})
    target_compile_options(${name} PRIVATE ${PXL_CODE_FLAGS})
endfunction()

# Compiles sources once per target; the variable `result` gets all objects.
function(pxl_objects_per_target name result)
    pxl_objects(${name}_sse2 ${ARGN})
    target_compile_definitions(${name}_sse2 PRIVATE PXL_TARGET=sse2)
    set(objects $<TARGET_OBJECTS:${name}_sse2>)
    if(PXL_AVX2)
        pxl_objects(${name}_avx2 ${ARGN})
        target_compile_definitions(${name}_avx2 PRIVATE PXL_TARGET=avx2)
        target_compile_options(${name}_avx2 PRIVATE -mavx2)
        list(APPEND objects $<TARGET_OBJECTS:${name}_avx2>)
    endif()
    set(${result} ${objects} PARENT_SCOPE)
endfunction()

pxl_objects_per_target(pxl PXL_TARGET_OBJECTS ${PXL_FAMILIES})

pxl_objects(pxl_common ${PXL_EXPORT_SOURCES} frame/memory.cpp frame/version.cpp frame/target.cpp)
target_compile_definitions(pxl_common PRIVATE $<$<BOOL:${PXL_AVX2}>:PXL_WITH_AVX2>)

add_library(pxlcore SHARED core/pxlcore.cpp)
target_compile_definitions(pxlcore PRIVATE PXLCORE_BUILD)
target_compile_options(pxlcore PRIVATE -fno-exceptions -fno-rtti)
target_link_libraries(pxlcore PRIVATE pxl_flags OpenMP::OpenMP_CXX)

add_library(pxlimx SHARED $<TARGET_OBJECTS:pxl_common> ${PXL_TARGET_OBJECTS})
set_target_properties(pxlimx PROPERTIES OUTPUT_NAME pxlimx-5.3)
target_link_libraries(pxlimx PRIVATE pxlcore OpenMP::OpenMP_CXX)
add_dependencies(pxlimx pxl_generate)

foreach(library pxlcore pxlimx)
    # The run-time dependencies are the C library and OpenMP.
    set_target_properties(${library} PROPERTIES LINKER_LANGUAGE CXX)
    target_link_options(${library} PRIVATE -static-libstdc++ -static-libgcc)
    target_include_directories(${library} INTERFACE $<BUILD_INTERFACE:${CMAKE_SOURCE_DIR}/include>
                                                    $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
endforeach()
if(WIN32)
    include(cmake/link_pe.cmake)
else()
    include(cmake/link_elf.cmake)
endif()
