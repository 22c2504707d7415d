# The target `reference`: pages of the public headers, in reference/html of the build folder. A missing or wrong comment
# is an error.
find_program(TAVI_DOXYGEN doxygen)
if(NOT TAVI_DOXYGEN)
  message(STATUS "doxygen not found (Debian: doxygen): no target `reference`, and its test is skipped")
  return()
endif()

file(READ docs/Doxyfile doxyfile)
file(WRITE ${PROJECT_BINARY_DIR}/reference/Doxyfile "${doxyfile}
PROJECT_NUMBER = ${PROJECT_VERSION}
OUTPUT_DIRECTORY = ${PROJECT_BINARY_DIR}/reference
")
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/docs/Doxyfile)
add_custom_target(reference COMMAND ${TAVI_DOXYGEN} ${PROJECT_BINARY_DIR}/reference/Doxyfile
  WORKING_DIRECTORY ${PROJECT_SOURCE_DIR} VERBATIM
  COMMENT "Making ${PROJECT_BINARY_DIR}/reference/html/index.html")
