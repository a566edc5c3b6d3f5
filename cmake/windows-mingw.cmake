# Cross-compiles for 64-bit Windows with MinGW-w64. KELVRA_WINDOWS names the folder of what tools/windows/build.sh makes:
# qt/ (Qt for Windows, with tools that run here) and libraries/ (SQLite, sodium, qrencode).
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR AMD64)

set(compiler x86_64-w64-mingw32)
set(CMAKE_CXX_COMPILER ${compiler}-g++-posix)
set(CMAKE_RC_COMPILER ${compiler}-windres)

list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES KELVRA_WINDOWS)
set(CMAKE_FIND_ROOT_PATH /usr/${compiler} ${KELVRA_WINDOWS}/qt ${KELVRA_WINDOWS}/libraries)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(ENV{PKG_CONFIG_LIBDIR} ${KELVRA_WINDOWS}/libraries/lib/pkgconfig)
set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/../tools/windows/wine.sh)
