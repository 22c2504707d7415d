# Toolchain file: cross-builds for Windows on Debian, with mingw and the libraries that tools/windows/build_dependencies
# built.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(tavi_mingw x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${tavi_mingw}-gcc-posix)
set(CMAKE_CXX_COMPILER ${tavi_mingw}-g++-posix)
set(CMAKE_RC_COMPILER ${tavi_mingw}-windres)

set(tavi_cache $ENV{TAVI_CACHE})
if(NOT tavi_cache)
  set(tavi_cache $ENV{HOME}/.cache/tavi)
endif()
set(tavi_windows_root ${tavi_cache}/windows/root)

# Libraries, headers and packages are those for Windows, programs those of this machine.
set(CMAKE_FIND_ROOT_PATH ${CMAKE_PREFIX_PATH} ${tavi_windows_root} /usr/${tavi_mingw})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/../tools/windows/run)
set(ENV{PKG_CONFIG_LIBDIR} ${tavi_windows_root}/lib/pkgconfig)
