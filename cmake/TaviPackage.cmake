# Debian packages, created by `cpack -G DEB` in a build folder of the preset "package"; tools/try_packages tries them.
#
# There are three, one for each component: the libraries, what other projects need, and the program.
set(CPACK_PACKAGE_VENDOR "taviinputmanager")
set(TAVI_PACKAGE_CONTACT "taviinputmanager developers <taviinputmanager@example.org>" CACHE STRING
  "Who answers for the Debian packages: name and address")
set(CPACK_PACKAGE_CONTACT ${TAVI_PACKAGE_CONTACT})
set(TAVI_PACKAGE_HOMEPAGE "https://example.org/taviinputmanager" CACHE STRING
  "Where the Debian packages say that more is to be read")
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE ${TAVI_PACKAGE_HOMEPAGE})
set(CPACK_PACKAGING_INSTALL_PREFIX ${CMAKE_INSTALL_PREFIX})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")  # each package has one of its own
set(CPACK_STRIP_FILES ON)
set(CPACK_COMPONENTS_ALL runtime development tools)
set(CPACK_COMPONENTS_GROUPING ONE_PER_GROUP)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SOURCE taviinputmanager)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

set(runtime_package libtaviinputmanager${TAVI_SOVERSION})
set(package_version ${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE})

# The dependencies of programs and libraries are read from their files. Our own libraries are not in any package yet.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR} ${PROJECT_BINARY_DIR}/keymapmanager)

# `multi_arch`: same, installed for several architectures in parallel; foreign, used by packages of any.
function(tavi_package_section component section multi_arch)
  # Before 3.31 CPack has no variable for this field, so it is appended to another.
  set(CPACK_DEBIAN_${component}_PACKAGE_SECTION "${section}\nMulti-Arch: ${multi_arch}" PARENT_SCOPE)
endfunction()

set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME ${runtime_package})
tavi_package_section(RUNTIME libs same)
# The trigger runs ldconfig. If CPack is given maintainer scripts, it omits its own, which would run it as well; it
# ignores scripts that do not exist.
set(no_scripts ${PROJECT_BINARY_DIR}/packaging/none/postinst ${PROJECT_BINARY_DIR}/packaging/none/postrm)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA ${PROJECT_SOURCE_DIR}/packaging/triggers ${no_scripts})
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION "input layer of front ends for Android guests: libraries
Keys, mouse, wheel, touch and gamepads of a desktop front end go in, and by a
keymap they become touches, keys and gamepad reports of an Android guest. What
was sent can be recorded and played again.
.
This package holds the input layer and the library that reads keymap files.")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libtaviinputmanager-dev)
tavi_package_section(DEVELOPMENT libdevel same)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
  "${runtime_package} (= ${package_version}), ${TAVI_QT_PACKAGE} (>= ${TAVI_QT_LEAST})")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_RECOMMENDS "tavi")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SUGGESTS "cmake, pkg-config")
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION "input layer of front ends for Android guests: development files
Keys, mouse, wheel, touch and gamepads of a desktop front end go in, and by a
keymap they become touches, keys and gamepad reports of an Android guest.
.
This package holds the headers, the ways in for CMake and pkg-config, the
documents for engineers of front ends and guests, and example hosts.")

set(CPACK_DEBIAN_TOOLS_PACKAGE_NAME tavi)
tavi_package_section(TOOLS utils foreign)
set(CPACK_DEBIAN_TOOLS_PACKAGE_DEPENDS "${runtime_package} (= ${package_version})")
set(CPACK_DEBIAN_TOOLS_PACKAGE_SUGGESTS "libtaviinputmanager-dev")
# Activates the udev rule.
configure_file(packaging/tavi.postinst packaging/tools/postinst COPYONLY)
set(CPACK_DEBIAN_TOOLS_PACKAGE_CONTROL_EXTRA ${PROJECT_BINARY_DIR}/packaging/tools/postinst)
set(CPACK_COMPONENT_TOOLS_DESCRIPTION "keymaps for Android guests: try, check, simulate, record
What the keys, the mouse and the gamepads of this computer do on the screen of
an Android guest is told by a keymap. tavi opens a window to try one in, checks
it, plays scripts of input with it, and plays, merges and draws records. It plays
a guest without a window, from this computer's devices or to a phone, and it can
be the guest, on input devices of the Linux kernel. A rule of udev lets the group
input do so.
.
This package holds the program, example keymaps and the documents for authors
of keymaps.")

# The files that every package has, but a plain installation does not.
set(changelog packaging/changelog.Debian)
if(TAVI_FOR_DEBIAN)
  tavi_compress(packaging/changelog.Debian changelog)
endif()
function(tavi_lintian_overrides package result)
  configure_file(packaging/lintian-overrides.in packaging/overrides/${package} @ONLY)
  set(more ${PROJECT_SOURCE_DIR}/packaging/${package}.lintian-overrides)
  if(EXISTS ${more})
    file(READ ${more} text)
    file(APPEND ${PROJECT_BINARY_DIR}/packaging/overrides/${package} "${text}")
  endif()
  set(${result} ${PROJECT_BINARY_DIR}/packaging/overrides/${package} PARENT_SCOPE)
endfunction()
foreach(package IN ITEMS "runtime ${runtime_package}" "development libtaviinputmanager-dev" "tools tavi")
  separate_arguments(package UNIX_COMMAND ${package})
  list(POP_FRONT package component)
  install(FILES packaging/copyright ${changelog}
    DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/doc/${package} COMPONENT ${component} EXCLUDE_FROM_ALL)
  tavi_lintian_overrides(${package} overrides)
  install(FILES ${overrides}
    DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/lintian/overrides COMPONENT ${component} EXCLUDE_FROM_ALL)
endforeach()

# Two builds of one source are equal byte for byte, wherever and whenever they are made: all file times are that of the
# last entry in the changelog.
if(TAVI_FOR_DEBIAN)
  find_program(TAVI_PARSE_CHANGELOG dpkg-parsechangelog REQUIRED)
  set(debian_changelog ${PROJECT_SOURCE_DIR}/packaging/changelog.Debian)
  execute_process(COMMAND ${TAVI_PARSE_CHANGELOG} -l ${debian_changelog} -S Timestamp
    OUTPUT_VARIABLE changelog_time OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${debian_changelog})
  set(CPACK_PROJECT_CONFIG_FILE ${PROJECT_BINARY_DIR}/packaging/time.cmake)
  file(WRITE ${CPACK_PROJECT_CONFIG_FILE} "set(ENV{SOURCE_DATE_EPOCH} ${changelog_time})\n")
endif()

include(CPack)
