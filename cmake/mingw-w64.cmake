# Cross-compiles for 64-bit Windows; what is built runs under Wine here.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)
set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
find_program(PXL_WINE wine64 PATHS /usr/lib/wine)
set(CMAKE_CROSSCOMPILING_EMULATOR ${PXL_WINE})
# This platform keeps the stack aligned to 16 bytes only: 32-byte vectors that spill to it move unaligned.
set(CMAKE_CXX_FLAGS_INIT -Wa,-muse-unaligned-vector-move)
