# What an installed tree holds: both libraries with their headers, the program, and the ways in for CMake
# (find_package(taviinputmanager)) and pkg-config. The tree can be moved: nothing in it names the prefix.
include(CMakePackageConfigHelpers)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/taviinputmanager)

install(TARGETS taviinputmanager tavi-keymapmanager EXPORT taviinputmanagerTargets)
if(TAVI_BUILD_HOST)
  install(TARGETS tavi)
  install(FILES docs/man/tavi.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
  install(FILES completions/tavi.bash DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions RENAME tavi)
  install(FILES completions/_tavi DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/site-functions)
  install(FILES completions/tavi.fish DESTINATION ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d)
endif()

install(DIRECTORY include/ keymap DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} FILES_MATCHING PATTERN "*.h")
install(FILES keymapmanager/keymap_file.h keymapmanager/key_names.h keymapmanager/nearest_word.h
  DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/keymapmanager)

install(EXPORT taviinputmanagerTargets NAMESPACE tavi:: DESTINATION ${package_dir})
configure_package_config_file(cmake/taviinputmanagerConfig.cmake.in taviinputmanagerConfig.cmake
  INSTALL_DESTINATION ${package_dir} NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(taviinputmanagerConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES
  ${PROJECT_BINARY_DIR}/taviinputmanagerConfig.cmake ${PROJECT_BINARY_DIR}/taviinputmanagerConfigVersion.cmake
  DESTINATION ${package_dir})

function(tavi_install_pkg_config name description requires)
  set(pkg_config_dir ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
  file(RELATIVE_PATH prefix_from_here /${pkg_config_dir} /)
  configure_file(cmake/pkg-config.pc.in ${name}.pc @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/${name}.pc DESTINATION ${pkg_config_dir})
endfunction()

tavi_install_pkg_config(tavi-keymapmanager "Keymap files to records, key names, diagnostics" "Qt5Core Qt5Gui")
tavi_install_pkg_config(taviinputmanager "${PROJECT_DESCRIPTION}" "tavi-keymapmanager")
