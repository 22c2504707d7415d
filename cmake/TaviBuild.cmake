# What every target of the tree shares. Inside another project it holds for this tree alone: what is set here is set in
# this folder's scope, and what cannot be is left to that project.
set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_AUTOMOC ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
if(PROJECT_IS_TOP_LEVEL AND NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
  set(CMAKE_BUILD_TYPE RelWithDebInfo CACHE STRING "" FORCE)
endif()

find_program(TAVI_CCACHE ccache)
if(PROJECT_IS_TOP_LEVEL AND TAVI_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  # A precompiled header defeats the cache unless its defines and times are allowed to differ.
  set(CMAKE_CXX_COMPILER_LAUNCHER
    ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
    CCACHE_BASEDIR=${PROJECT_SOURCE_DIR} ${TAVI_CCACHE})
endif()

# The Qt that all is built on. One build has one: neither its headers nor its libraries go with the other's. What one does
# otherwise than the other stands in pairs of headers, "qt/x.h", in qt/5 and qt/6.
if(TAVI_QT EQUAL 5)
  set(TAVI_QT_LEAST 5.15)
  set(TAVI_QT_PACKAGE qtbase5-dev)  # Debian's
  set(TAVI_QT_VECTOR QVector)  # what the compiler calls one
elseif(TAVI_QT EQUAL 6)
  set(TAVI_QT_LEAST 6.4)
  set(TAVI_QT_PACKAGE qt6-base-dev)
  set(TAVI_QT_VECTOR QList)
else()
  message(FATAL_ERROR "TAVI_QT is 5 or 6, not \"${TAVI_QT}\"")
endif()

# A macro, since Qt leaves variables that its moc is found by.
macro(tavi_find_qt)
  find_package(Qt${TAVI_QT} ${TAVI_QT_LEAST} REQUIRED COMPONENTS ${ARGN})
endmacro()

# Windows looks for libraries beside the program.
if(WIN32 AND PROJECT_IS_TOP_LEVEL)
  set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin)
endif()

set(TAVI_SOVERSION ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})

# Shared libraries, unless static ones are asked for. No cache entry: it would decide for the project around this one.
set(TAVI_LIBRARY_TYPE SHARED)
if(DEFINED BUILD_SHARED_LIBS AND NOT BUILD_SHARED_LIBS)
  set(TAVI_LIBRARY_TYPE STATIC)
endif()
set(TAVI_STATIC_ON_WINDOWS OFF)
if(WIN32 AND TAVI_LIBRARY_TYPE STREQUAL STATIC)
  set(TAVI_STATIC_ON_WINDOWS ON)
endif()

# Warnings, and what the compiler has to be told to take this code. Of Microsoft's nobody has tried it.
if(MSVC)
  set(tavi_compile_options /W4 $<$<BOOL:${TAVI_WERROR}>:/WX> /utf-8 /permissive- /Zc:__cplusplus /EHsc)
else()
  set(tavi_compile_options -Wall -Wextra -Wpedantic $<$<BOOL:${TAVI_WERROR}>:-Werror>)
endif()

function(tavi_target_defaults target)
  target_compile_options(${target} PRIVATE ${tavi_compile_options})
  target_compile_definitions(${target} PRIVATE QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS)
  set_target_properties(${target} PROPERTIES CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    target_compile_options(${target} PRIVATE -fpch-preprocess)
  endif()
  if(TAVI_SANITIZE)
    list(JOIN TAVI_SANITIZE "," sanitizers)
    target_compile_options(${target} PRIVATE -fsanitize=${sanitizers} -fno-omit-frame-pointer
      -fno-sanitize-recover=all)
    target_link_options(${target} PUBLIC -fsanitize=${sanitizers})
  endif()
  target_include_directories(${target} PRIVATE ${PROJECT_SOURCE_DIR}/qt/${TAVI_QT})
  tavi_open_for_mutants(${target})
  get_target_property(type ${target} TYPE)
  if(TAVI_SANITIZE AND type STREQUAL EXECUTABLE)
    target_sources(${target} PRIVATE ${PROJECT_SOURCE_DIR}/cmake/sanitizer_options.cpp)
  endif()
endfunction()

# The libraries alone are counted: tests always run. Some of their lines run on threads at once.
if(TAVI_COVERAGE)
  add_link_options(--coverage)
endif()
function(tavi_count_lines target)
  if(TAVI_COVERAGE)
    target_compile_options(${target} PRIVATE --coverage -fprofile-update=atomic)
  endif()
endfunction()

# What a shared library says of itself, for a library of the tree that is one.
#
# Its version is the first two numbers: while the first is 0, each second one may need programs to be built anew. It
# stays in the process once it is loaded, since timers, threads and objects that are destroyed at exit run its code. And
# it has exactly the symbols that a version script names: hidden visibility alone leaks template instances.
function(tavi_shared_library target version_script)
  get_target_property(type ${target} TYPE)
  if(NOT type STREQUAL SHARED_LIBRARY)
    return()
  endif()
  set_target_properties(${target} PROPERTIES VERSION ${PROJECT_VERSION} SOVERSION ${TAVI_SOVERSION})
  if(WIN32)
    return()
  endif()
  target_link_options(${target} PRIVATE -Wl,-z,nodelete)
  if(TAVI_SANITIZE OR TAVI_MUTANTS)
    return()
  endif()
  target_link_options(${target} PRIVATE -Wl,--version-script=${version_script} -Wl,--no-undefined)
  set_property(TARGET ${target} PROPERTY LINK_DEPENDS ${version_script})
endfunction()

# Platform code stands in pairs *_posix.cpp, *_windows.cpp behind one header, and so does what a Qt has its own way of,
# *_qt5.cpp and *_qt6.cpp. A test of one platform alone is a *_posix_test.cpp or a *_windows_test.cpp.
function(tavi_exclude_other_platforms list_name)
  set(files ${${list_name}})
  if(WIN32)
    list(FILTER files EXCLUDE REGEX "_posix(_test)?\\.cpp$")
  else()
    list(FILTER files EXCLUDE REGEX "_windows(_test)?\\.cpp$")
  endif()
  math(EXPR other_qt "11 - ${TAVI_QT}")
  list(FILTER files EXCLUDE REGEX "_qt${other_qt}\\.cpp$")
  set(${list_name} ${files} PARENT_SCOPE)
endfunction()
