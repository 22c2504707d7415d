# What an installed tree holds: both libraries with their headers, the program, documents and examples, and the ways in
# for CMake (find_package(taviinputmanager)) and pkg-config. The tree can be moved: nothing in it names the prefix.
#
# Components, which are the packages of TaviPackage.cmake: `runtime`, the libraries; `development`, what others build
# on; `tools`, the program.
include(CMakePackageConfigHelpers)

# `result` becomes the path of a compressed copy of `file`, in the build folder.
function(tavi_compress file result)
  find_program(TAVI_GZIP gzip REQUIRED)
  get_filename_component(name ${file} NAME)
  set(copy ${PROJECT_BINARY_DIR}/packaging/${name})
  configure_file(${file} ${copy} COPYONLY)
  execute_process(COMMAND ${TAVI_GZIP} -9nkf ${copy} COMMAND_ERROR_IS_FATAL ANY)
  set(${result} ${copy}.gz PARENT_SCOPE)
endfunction()

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/taviinputmanager)

install(TARGETS taviinputmanager tavi-keymapmanager EXPORT taviinputmanagerTargets
  LIBRARY COMPONENT runtime NAMELINK_COMPONENT development
  RUNTIME COMPONENT runtime
  ARCHIVE COMPONENT development)
if(TAVI_BUILD_HOST)
  # Debian looks for its packages' functions of zsh elsewhere, and wants manual pages compressed.
  set(man_page docs/man/tavi.1)
  set(zsh_dir ${CMAKE_INSTALL_DATADIR}/zsh/site-functions)
  if(TAVI_FOR_DEBIAN)
    tavi_compress(docs/man/tavi.1 man_page)
    set(zsh_dir ${CMAKE_INSTALL_DATADIR}/zsh/vendor-completions)
  endif()
  install(TARGETS tavi COMPONENT tools)
endif()
if(TAVI_BUILD_HOST AND NOT WIN32)
  install(FILES ${man_page} DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT tools)
  install(FILES completions/tavi.bash DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions RENAME tavi
    COMPONENT tools)
  install(FILES completions/_tavi DESTINATION ${zsh_dir} COMPONENT tools)
  install(FILES completions/tavi.fish DESTINATION ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d COMPONENT tools)
  # Without libevdev there is no `tavi play`, which needs it.
  if(libevdev_FOUND)
    install(FILES packaging/60-tavi.rules DESTINATION lib/udev/rules.d COMPONENT tools)
  endif()
endif()

# The guest for phones and other machines, for tavi to take there.
option(TAVI_INSTALL_GUESTS "Install the static guests that tools/build_guest has built" ${TAVI_FOR_DEBIAN})
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

# `private_libraries`: what the code needs and the headers do not. Not as packages that it requires: pkg-config would
# ask for those of each who builds on the shared libraries.
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

# The documents lie beside the examples as they do in the source, so that the links between them hold; they link to
# nothing that is not installed. What players and authors of keymaps read comes with the program.
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
