# Builds for 64-bit Windows with the mingw-w64 cross compiler.
#
#   cmake --toolchain cmake/toolchains/mingw-w64.cmake -DCMAKE_PREFIX_PATH=<a Qt for Windows> ...
#
# The threads are POSIX ones, because the C++ library of the other flavour has no <mutex> and no <thread>.

set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(CMAKE_C_COMPILER   x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER  x86_64-w64-mingw32-windres)

# The stack of a main thread is the one that programs of other Windows compilers have; this linker would double it.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-Wl,--stack,0x100000")

# Programs run here, everything else is there: a Qt or a library of this machine must never be found.
set(CMAKE_FIND_ROOT_PATH ${CMAKE_PREFIX_PATH} /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
