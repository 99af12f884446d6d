# The two libraries. Family sources are compiled once per target into namespaces of their own; everything else once.

set(PXL_GENERATED ${PROJECT_BINARY_DIR}/generated)
file(GLOB PXL_API CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/api/*)
set(PXL_GENERATE ${Python3_EXECUTABLE} -B ${PROJECT_SOURCE_DIR}/api/generate.py)

# What api/targets.toml lists: PXL_KNOWN_TARGETS, and for each its flags, its vectors and the sources that it is limited to.
execute_process(COMMAND ${PXL_GENERATE} cmake ${PXL_GENERATED}/targets.cmake COMMAND_ERROR_IS_FATAL ANY)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${PXL_API})
include(${PXL_GENERATED}/targets.cmake)
set(PXL_TARGETS all CACHE STRING "The targets to build, in the order of api/targets.toml")
if(PXL_TARGETS STREQUAL "all")
    set(PXL_TARGETS ${PXL_KNOWN_TARGETS}) # of this scope alone, so that new ones reach builds that are configured already
endif()

set(PXL_SUBSYSTEMS exchange arith threshold filter)
set(PXL_FAMILIES)
foreach(subsystem IN LISTS PXL_SUBSYSTEMS)
    file(GLOB sources CONFIGURE_DEPENDS RELATIVE ${PROJECT_SOURCE_DIR} ${subsystem}/*.cpp)
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
               ${PXL_GENERATED}/target_list.h ${PXL_GENERATED}/pxlimx.map ${PXL_GENERATED}/pxlimx.def
    COMMAND ${PXL_GENERATE} sources ${PXL_GENERATED} ${PXL_TARGETS}
    COMMAND ${CMAKE_COMMAND} -E touch ${PXL_GENERATED}/stamp
    DEPENDS ${PXL_API}
    COMMENT "Generating from the registry")
add_custom_target(pxl_generate DEPENDS ${PXL_GENERATED}/stamp)

# -ffp-contract=off and no fast-math: results are the same bits on every target. -fno-strict-aliasing: members that move bits
# see the caller's elements as unsigned ones. Nothing here throws, so nothing of the C++ runtime is needed.
# Branches within 32 bytes: some processors run a loop whose branch crosses such a boundary up to half slower, so that without this
# the time of a short call would depend on where the linker puts it.
set(PXL_CODE_FLAGS -ffp-contract=off -fno-math-errno -fno-strict-aliasing -fno-exceptions -fno-rtti
                   -Wa,-mbranches-within-32B-boundaries)

function(pxl_objects name)
    add_library(${name} OBJECT ${ARGN})
    add_dependencies(${name} pxl_generate)
    target_link_libraries(${name} PRIVATE pxl_flags OpenMP::OpenMP_CXX)
    target_include_directories(${name} PRIVATE ${PXL_GENERATED})
    target_compile_options(${name} PRIVATE ${PXL_CODE_FLAGS})
endfunction()

# The code of one target: sources that are compiled into its namespace, over its vectors. The members of an optional target
# stand in a folder of its name, those of all others beside it.
function(pxl_target_objects name target)
    pxl_objects(${name} ${ARGN})
    target_include_directories(${name} BEFORE PRIVATE ${PXL_GENERATED}/${target})
    target_compile_definitions(${name} PRIVATE PXL_TARGET=${target} PXL_VECTORS="${PXL_VECTORS_${target}}")
    target_compile_options(${name} PRIVATE ${PXL_FLAGS_${target}})
    target_precompile_headers(${name} PRIVATE <immintrin.h>) # a third of what a small family takes to compile
endfunction()

set(PXL_TARGET_OBJECTS)
foreach(target IN LISTS PXL_TARGETS)
    set(sources ${PXL_FAMILIES})
    if(PXL_SOURCES_${target})
        set(sources ${PXL_SOURCES_${target}})
    endif()
    pxl_target_objects(pxl_${target} ${target} ${sources})
    list(APPEND PXL_TARGET_OBJECTS $<TARGET_OBJECTS:pxl_${target}>)
endforeach()

pxl_objects(pxl_common ${PXL_EXPORT_SOURCES} frame/memory.cpp frame/version.cpp frame/target.cpp frame/team.cpp)

add_library(pxlcore SHARED core/pxlcore.cpp)
target_compile_definitions(pxlcore PRIVATE PXLCORE_BUILD)
target_compile_options(pxlcore PRIVATE -fno-exceptions -fno-rtti)
target_link_libraries(pxlcore PRIVATE pxl_flags OpenMP::OpenMP_CXX)

add_library(pxlimx SHARED $<TARGET_OBJECTS:pxl_common> ${PXL_TARGET_OBJECTS})
set_target_properties(pxlimx PROPERTIES OUTPUT_NAME pxlimx-5.3)
target_link_libraries(pxlimx PUBLIC pxlcore PRIVATE OpenMP::OpenMP_CXX) # programs that set the team size need both
add_dependencies(pxlimx pxl_generate)

foreach(library pxlcore pxlimx)
    add_library(pxlimx::${library} ALIAS ${library}) # the names that an installed package gives them
    # The run-time dependencies are the C library and OpenMP.
    set_target_properties(${library} PROPERTIES LINKER_LANGUAGE CXX)
    target_link_options(${library} PRIVATE -static-libstdc++ -static-libgcc)
    target_include_directories(${library} INTERFACE $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/include>
                                                    $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
endforeach()
if(WIN32)
    include(cmake/link_pe.cmake)
else()
    include(cmake/link_elf.cmake)
endif()
