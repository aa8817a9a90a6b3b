include(SourcesOfOthers)
if(NOT TARGET rapidcheck)
  set(rapidcheck_sources "${PROJECT_SOURCE_DIR}/build/rapidcheck-1048")
  vorn_sources_of_others("${rapidcheck_sources}" rapidcheck)
  # As in Debian's package, the header for GoogleTest is found beside the other headers.
  target_include_directories(rapidcheck SYSTEM INTERFACE
    "$<BUILD_INTERFACE:${rapidcheck_sources}/extras/gtest/include>")
endif()
set(rapidcheck_FOUND TRUE)
