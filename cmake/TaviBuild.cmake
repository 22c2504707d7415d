# What all targets of the tree have in common. As a subproject it affects only this tree: variables are set in this
# folder's scope, and everything else is left to the outer project.
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
  # With a precompiled header, the compiler cache works only if its defines and times may differ.
  set(CMAKE_CXX_COMPILER_LAUNCHER
    ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
    CCACHE_BASEDIR=${PROJECT_SOURCE_DIR} ${TAVI_CCACHE})
endif()

# The Qt of the build. Headers and libraries of the two Qts cannot be mixed. Differences between the Qts are in pairs of
# headers, "qt/x.h", in qt/5 and qt/6.
if(TAVI_QT EQUAL 5)
  set(TAVI_QT_LEAST 5.15)
  set(TAVI_QT_PACKAGE qtbase5-dev)  # Debian's name
  set(TAVI_QT_VECTOR QVector)  # the compiler's name
elseif(TAVI_QT EQUAL 6)
  set(TAVI_QT_LEAST 6.4)
  set(TAVI_QT_PACKAGE qt6-base-dev)
  set(TAVI_QT_VECTOR QList)
else()
  message(FATAL_ERROR "TAVI_QT is 5 or 6, not \"${TAVI_QT}\"")
endif()

# A macro, because find_package sets variables that Qt's moc needs.
macro(tavi_find_qt)
  find_package(Qt${TAVI_QT} ${TAVI_QT_LEAST} REQUIRED COMPONENTS ${ARGN})
endmacro()

# Windows looks for libraries next to the program.
if(WIN32 AND PROJECT_IS_TOP_LEVEL)
  set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin)
endif()

set(TAVI_SOVERSION ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})

# Shared libraries by default. Not a cache entry, which would affect the outer project.
set(TAVI_LIBRARY_TYPE SHARED)
if(DEFINED BUILD_SHARED_LIBS AND NOT BUILD_SHARED_LIBS)
  set(TAVI_LIBRARY_TYPE STATIC)
endif()
set(TAVI_STATIC_ON_WINDOWS OFF)
if(WIN32 AND TAVI_LIBRARY_TYPE STREQUAL STATIC)
  set(TAVI_STATIC_ON_WINDOWS ON)
endif()

# Warnings, and the options that the compiler needs for this code. Those for Microsoft's compiler are untested.
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
  elseif(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    # Macros of Qt and GoogleTest use this extension.
    target_compile_options(${target} PRIVATE -Wno-gnu-zero-variadic-macro-arguments)
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

# For the libraries: no implicit conversion that may change a value, and no hidden name.
function(tavi_strict_warnings target)
  if(CMAKE_CXX_COMPILER_ID MATCHES "^(GNU|Clang)$")
    target_compile_options(${target} PRIVATE -Wshadow -Wconversion -Wsign-conversion)
  endif()
endfunction()

# Only the libraries are measured: tests always run. Some lines run on several threads at once.
if(TAVI_COVERAGE)
  add_link_options(--coverage)
endif()
function(tavi_count_lines target)
  if(TAVI_COVERAGE)
    target_compile_options(${target} PRIVATE --coverage -fprofile-update=atomic)
  endif()
endfunction()

# The properties of a shared library of the tree.
#
# Its version consists of the first two numbers: while the first is 0, a new second number may require rebuilding
# programs. The library is never unloaded, because timers, threads and objects with static lifetime run its code until
# exit. It exports exactly the symbols in its version script: hidden visibility alone would export template instances.
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

# Platform code is in pairs *_posix.cpp, *_windows.cpp behind one header. A test for one platform is a *_posix_test.cpp or
# a *_windows_test.cpp.
function(tavi_exclude_other_platforms list_name)
  set(files ${${list_name}})
  if(WIN32)
    list(FILTER files EXCLUDE REGEX "_posix(_test)?\\.cpp$")
  else()
    list(FILTER files EXCLUDE REGEX "_windows(_test)?\\.cpp$")
  endif()
  set(${list_name} ${files} PARENT_SCOPE)
endfunction()
