# vorn_sources_of_others(folder name): adds the CMake project in a folder. Its warnings are no errors, and
# nothing of it is built or installed that we do not use.
function(vorn_sources_of_others folder name)
  if(NOT EXISTS "${folder}/CMakeLists.txt")
    message(FATAL_ERROR "The sources of ${name} are not in ${folder}. tools/fetch-cross-sources.sh puts them there.")
  endif()
  set(CMAKE_COMPILE_WARNING_AS_ERROR OFF)
  set(CMAKE_WARN_DEPRECATED OFF CACHE INTERNAL "Others ask for old releases of CMake")
  set(BUILD_SHARED_LIBS OFF)
  add_subdirectory("${folder}" "${CMAKE_BINARY_DIR}/${name}" EXCLUDE_FROM_ALL SYSTEM)
endfunction()
