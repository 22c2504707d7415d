# The installed tree: both libraries with their headers, the program, documents and examples, and the files for CMake
# (find_package(taviinputmanager)) and pkg-config. The tree can be moved: no file in it contains the prefix.
#
# The components are the packages of debian/rules: `runtime`, the libraries; `development`, what other projects need;
# `tools`, the program.
include(CMakePackageConfigHelpers)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/taviinputmanager)

install(TARGETS taviinputmanager tavi-keymapmanager EXPORT taviinputmanagerTargets
  LIBRARY COMPONENT runtime NAMELINK_COMPONENT development
  RUNTIME COMPONENT runtime
  ARCHIVE COMPONENT development)
if(TAVI_BUILD_HOST)
  set(TAVI_ZSH_DIR ${CMAKE_INSTALL_DATADIR}/zsh/site-functions CACHE STRING
    "Where zsh finds completion functions of programs")
  install(TARGETS tavi COMPONENT tools)
  install(FILES docs/man/tavi.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT tools)
  install(FILES completions/tavi.bash DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions RENAME tavi
    COMPONENT tools)
  install(FILES completions/_tavi DESTINATION ${TAVI_ZSH_DIR} COMPONENT tools)
  install(FILES completions/tavi.fish DESTINATION ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d COMPONENT tools)
  # `tavi play` exists only with libevdev.
  if(libevdev_FOUND)
    install(FILES packaging/60-tavi.rules DESTINATION lib/udev/rules.d COMPONENT tools)
  endif()
endif()

# The guest for phones and other machines, for users of tavi to copy there.
option(TAVI_INSTALL_GUESTS "Install the static guests that tools/build_guest has built" OFF)
set(TAVI_GUESTS ${PROJECT_SOURCE_DIR}/build/guest CACHE PATH "Where tools/build_guest has put the static guests")
function(tavi_install_guests)
  foreach(architecture IN ITEMS aarch64 armv7 x86_64)
    set(program ${TAVI_GUESTS}/${architecture}/tavi-guest)
    if(EXISTS ${program})
      install(PROGRAMS ${program} DESTINATION lib/tavi/guest/${architecture} COMPONENT tools)
    else()
      message(STATUS "Without the guest for ${architecture}: no ${program} (tools/build_guest)")
    endif()
  endforeach()
endfunction()
if(TAVI_BUILD_HOST AND TAVI_INSTALL_GUESTS)
  tavi_install_guests()
endif()

install(DIRECTORY include/ keymap DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT development
  FILES_MATCHING PATTERN "*.h")
install(FILES keymapmanager/item_types.h keymapmanager/key_names.h keymapmanager/keymap_file.h
  keymapmanager/keymap_outline.h keymapmanager/nearest_word.h
  DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/keymapmanager COMPONENT development)

install(EXPORT taviinputmanagerTargets NAMESPACE tavi:: DESTINATION ${package_dir} COMPONENT development)
configure_package_config_file(cmake/taviinputmanagerConfig.cmake.in taviinputmanagerConfig.cmake
  INSTALL_DESTINATION ${package_dir} NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(taviinputmanagerConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES
  ${PROJECT_BINARY_DIR}/taviinputmanagerConfig.cmake ${PROJECT_BINARY_DIR}/taviinputmanagerConfigVersion.cmake
  DESTINATION ${package_dir} COMPONENT development)

# `private_libraries`: what the code needs but not the headers. They are not listed as required packages, because
# pkg-config would demand them from every user of the shared libraries.
function(tavi_install_pkg_config name description requires private_libraries)
  set(pkg_config_dir ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
  file(RELATIVE_PATH prefix_from_here /${pkg_config_dir} /)
  configure_file(cmake/pkg-config.pc.in ${name}.pc @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/${name}.pc DESTINATION ${pkg_config_dir} COMPONENT development)
endfunction()

list(JOIN tavi_libyaml_LDFLAGS " " libyaml_flags)
tavi_install_pkg_config(tavi-keymapmanager "Keymap files to records, key names, diagnostics" "Qt${TAVI_QT}Core >= ${TAVI_QT_LEAST} Qt${TAVI_QT}Gui >= ${TAVI_QT_LEAST}"
  "${libyaml_flags}")
tavi_install_pkg_config(taviinputmanager "${PROJECT_DESCRIPTION}" "tavi-keymapmanager"
  "-lPocoJSON -lPocoFoundation")

# The documents are beside the examples, as in the source, so that the links between them work; they link only to
# installed files. What players and authors of keymaps read is installed with the program.
set(doc_dir ${CMAKE_INSTALL_DATAROOTDIR}/doc/taviinputmanager)
set(examples_for_tools keymaps records scripts tutorial)
set(documents_for_tools
  glossary play window guest-protocol editor tutorial keymap macros scripts record-format keymap.schema record.schema)
list(JOIN documents_for_tools "|" documents_for_tools)
foreach(folder IN LISTS examples_for_tools)
  install(DIRECTORY examples/${folder} DESTINATION ${doc_dir}/examples COMPONENT tools)
endforeach()
install(DIRECTORY docs/pictures DESTINATION ${doc_dir}/docs COMPONENT tools PATTERN growth.svg EXCLUDE)
install(DIRECTORY docs/ DESTINATION ${doc_dir}/docs COMPONENT tools
  FILES_MATCHING REGEX "/(${documents_for_tools})\\.(md|json)$" PATTERN pictures EXCLUDE PATTERN man EXCLUDE)
install(DIRECTORY docs/pictures DESTINATION ${doc_dir}/docs COMPONENT development
  FILES_MATCHING PATTERN growth.svg)
install(DIRECTORY docs/ DESTINATION ${doc_dir}/docs COMPONENT development
  FILES_MATCHING PATTERN "*.md" REGEX "/(${documents_for_tools})\\.md$" EXCLUDE PATTERN pictures EXCLUDE PATTERN man EXCLUDE)
install(FILES README.md CHANGELOG.md DESTINATION ${doc_dir} COMPONENT development)
install(DIRECTORY examples/host examples/host_window DESTINATION ${doc_dir}/examples COMPONENT development)
