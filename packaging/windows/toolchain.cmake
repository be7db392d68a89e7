# SPDX-License-Identifier: MIT
# Has CMake build for 64-bit Windows with the compiler of mingw-w64. DESK_SYSROOT names the folder
# in which dependencies.sh has put the libraries; nothing of this machine's own is found.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(target x86_64-w64-mingw32)

# The "posix" kind of the compiler: the other has no std::thread.
set(CMAKE_C_COMPILER ${target}-gcc-posix)
set(CMAKE_CXX_COMPILER ${target}-g++-posix)
set(CMAKE_RC_COMPILER ${target}-windres)

list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES DESK_SYSROOT)
set(CMAKE_FIND_ROOT_PATH ${DESK_SYSROOT} /usr/${target})
set(CMAKE_PREFIX_PATH ${DESK_SYSROOT})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(ENV{PKG_CONFIG_LIBDIR} ${DESK_SYSROOT}/lib/pkgconfig)
