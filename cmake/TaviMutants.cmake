# The build for tools/mutants (TAVI_MUTANTS): the tests run against the shared library, which exports every folder, so
# that a change costs its object and one link; and the library records which code ran.
set(TAVI_LIBRARY_UNDER_TEST tavi_objects)
if(TAVI_MUTANTS)
  set(TAVI_LIBRARY_UNDER_TEST taviinputmanager Poco::Foundation Poco::JSON)
endif()

# Singletons in headers stay single only if each side exports its own. A changed line may leave a name unused; only a
# function without a result is an error then.
function(tavi_open_for_mutants target)
  if(TAVI_MUTANTS)
    target_compile_options(${target} PRIVATE -Werror=return-type)
    set_target_properties(${target} PROPERTIES CXX_VISIBILITY_PRESET default VISIBILITY_INLINES_HIDDEN OFF)
  endif()
endfunction()

# The library calls its own copy of an inline function, because a test's copy is the unchanged one.
function(tavi_trace_runs objects library)
  if(TAVI_MUTANTS)
    target_compile_options(${objects} PRIVATE -fsanitize-coverage=trace-pc)
    target_sources(${library} PRIVATE ${PROJECT_SOURCE_DIR}/cmake/trace_runs.cpp)
    target_link_options(${library} PRIVATE -Wl,-Bsymbolic-functions -fuse-ld=gold)  # faster links
  endif()
endfunction()
