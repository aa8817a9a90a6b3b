include(SourcesOfOthers)
if(NOT TARGET rapidcheck)
  set(rapidcheck_sources "${PROJECT_SOURCE_DIR}/build/rapidcheck-1048")
  vorn_sources_of_others("${rapidcheck_sources}" rapidcheck)
  # What it has for GoogleTest is a header beside the library's own, as in Debian's package.
  target_include_directories(rapidcheck SYSTEM INTERFACE
    "$<BUILD_INTERFACE:${rapidcheck_sources}/extras/gtest/include>")
endif()
set(rapidcheck_FOUND TRUE)
