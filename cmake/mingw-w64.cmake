# Builds for 64-bit Windows with the distribution's mingw-w64. The variant with POSIX threads, since
# the other one's standard library knows no threads. What the distribution does not have for
# Windows stands in build/windows-deps (script/windows-sqlite).
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

get_filename_component(checkout "${CMAKE_CURRENT_LIST_DIR}" DIRECTORY)
set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32 "${checkout}/build/windows-deps")
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# One file to carry: no library of the compiler's beside the program.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static")

# What is built is run here under Wine.
set(CMAKE_CROSSCOMPILING_EMULATOR "${checkout}/script/wine")
