# Fails if an outer build that embeds the library gets more than its target: settings, tests or programs.
foreach(variable IN ITEMS CMAKE_CXX_STANDARD CMAKE_CXX_EXTENSIONS CMAKE_CXX_VISIBILITY_PRESET
    CMAKE_VISIBILITY_INLINES_HIDDEN CMAKE_POSITION_INDEPENDENT_CODE CMAKE_MODULE_PATH
    CMAKE_EXPORT_COMPILE_COMMANDS CMAKE_COMPILE_WARNING_AS_ERROR BUILD_SHARED_LIBS)
  if(NOT "${${variable}}" STREQUAL "")
    message(FATAL_ERROR "The library sets ${variable} for the outer build.")
  endif()
endforeach()

foreach(property IN ITEMS COMPILE_OPTIONS COMPILE_DEFINITIONS INCLUDE_DIRECTORIES LINK_OPTIONS)
  get_directory_property(value ${property})
  if(NOT "${value}" STREQUAL "")
    message(FATAL_ERROR "The library adds to the ${property} of the outer build: ${value}")
  endif()
endforeach()

get_target_property(folder VornLib SOURCE_DIR)
cmake_path(GET folder PARENT_PATH folder)
get_property(tests DIRECTORY "${folder}" PROPERTY TESTS)
if(TARGET vorn-inspect OR TARGET vorn_test_support OR tests)
  message(FATAL_ERROR "The library builds its own programs or tests in the outer build.")
endif()
