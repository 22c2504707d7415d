# What tools/mutants needs of a build, and no other build has (TAVI_MUTANTS): the tests run against the shared library,
# which exports every room, so that a change costs its object and one link; and the library tells which code ran.
set(TAVI_LIBRARY_UNDER_TEST tavi_objects)
if(TAVI_MUTANTS)
  set(TAVI_LIBRARY_UNDER_TEST taviinputmanager Poco::Foundation Poco::JSON)
endif()

# Singletons of headers stay single only if each side shows its own. A changed line may leave a name unused; only a
# function without a result is an error then.
function(tavi_open_for_mutants target)
  if(TAVI_MUTANTS)
    target_compile_options(${target} PRIVATE -Werror=return-type)
    set_target_properties(${target} PROPERTIES CXX_VISIBILITY_PRESET default VISIBILITY_INLINES_HIDDEN OFF)
  endif()
endfunction()

# The library calls its own copy of what stands in a header, since a test's copy is the unchanged one.
function(tavi_trace_runs objects library)
  if(TAVI_MUTANTS)
    target_compile_options(${objects} PRIVATE -fsanitize-coverage=trace-pc)
    target_sources(${library} PRIVATE ${PROJECT_SOURCE_DIR}/cmake/trace_runs.cpp)
    target_link_options(${library} PRIVATE -Wl,-Bsymbolic-functions -fuse-ld=gold)  # quick
  endif()
endfunction()
