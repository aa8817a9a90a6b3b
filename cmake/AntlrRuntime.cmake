# The ANTLR C++ runtime. By default it is built from source as a static library and linked, hidden, into
# ours. So it cannot clash with an ANTLR runtime of the host.
set(VORN_ANTLR bundled CACHE STRING "bundled: in the library, from VORN_ANTLR_SOURCE; system: the installed one")
set_property(CACHE VORN_ANTLR PROPERTY STRINGS bundled system)
set(VORN_ANTLR_VERSION 4.10 CACHE STRING "Release of the ANTLR runtime, from 4.10 to 4.13.2")
set(VORN_ANTLR_SOURCE "${PROJECT_SOURCE_DIR}/build/antlr4-runtime-4.10" CACHE PATH
    "Sources of the ANTLR C++ runtime, a folder or an archive")

find_package(Threads REQUIRED)

# vorn_find_antlr_sources(result): finds the folder with antlr4-runtime.h in VORN_ANTLR_SOURCE, which is a
# folder or an archive.
function(vorn_find_antlr_sources result)
  set(folder "${VORN_ANTLR_SOURCE}")
  if(EXISTS "${folder}" AND NOT IS_DIRECTORY "${folder}")
    set(folder "${PROJECT_BINARY_DIR}/antlr4-runtime")
    file(ARCHIVE_EXTRACT INPUT "${VORN_ANTLR_SOURCE}" DESTINATION "${folder}")
  endif()
  file(GLOB_RECURSE headers "${folder}/antlr4-runtime.h")
  list(LENGTH headers count)
  if(NOT count EQUAL 1)
    message(FATAL_ERROR "Set VORN_ANTLR_SOURCE to the sources of the ANTLR C++ runtime "
                        "${VORN_ANTLR_VERSION}, a folder or an archive, which are not in "
                        "${VORN_ANTLR_SOURCE}; on Debian `make setup` in ${PROJECT_SOURCE_DIR} gets "
                        "them.")
  endif()
  cmake_path(GET headers PARENT_PATH sources)
  set(${result} "${sources}" PARENT_SCOPE)
endfunction()

# vorn_check_antlr_version(folder): fails if the headers are not those of VORN_ANTLR_VERSION. Only major
# and minor number are compared, since generated sources fit all runtimes that share these.
function(vorn_check_antlr_version folder)
  foreach(part IN ITEMS MAJOR MINOR)
    file(STRINGS "${folder}/Version.h" line REGEX "^#define ANTLRCPP_VERSION_${part} ")
    string(REGEX MATCH "[0-9]+$" number "${line}")
    list(APPEND found ${number})
  endforeach()
  list(JOIN found "." found)
  string(REGEX MATCH "^[0-9]+\\.[0-9]+" wanted "${VORN_ANTLR_VERSION}")
  if(NOT found VERSION_EQUAL wanted)
    message(FATAL_ERROR "The ANTLR runtime in ${folder} is of release ${found}, not ${VORN_ANTLR_VERSION}; "
                        "-DVORN_ANTLR_VERSION=… tells which one is wanted.")
  endif()
endfunction()

if(VORN_ANTLR STREQUAL "system")
  if(NOT VORN_SHARED)
    message(FATAL_ERROR "A static VornLib holds its ANTLR runtime, so VORN_ANTLR must be `bundled`.")
  endif()
  find_path(VORN_ANTLR_HEADERS antlr4-runtime.h PATH_SUFFIXES antlr4-runtime REQUIRED)
  find_library(VORN_ANTLR_LIBRARY antlr4-runtime REQUIRED)
  vorn_check_antlr_version("${VORN_ANTLR_HEADERS}")
  add_library(vorn_antlr_runtime INTERFACE)
  target_include_directories(vorn_antlr_runtime SYSTEM INTERFACE "${VORN_ANTLR_HEADERS}")
  target_link_libraries(vorn_antlr_runtime INTERFACE "${VORN_ANTLR_LIBRARY}" Threads::Threads)
  return()
endif()

vorn_find_antlr_sources(antlr_folder)
vorn_check_antlr_version("${antlr_folder}")
file(GLOB_RECURSE antlr_sources "${antlr_folder}/*.cpp")
add_library(vorn_antlr_runtime STATIC ${antlr_sources})
target_include_directories(vorn_antlr_runtime SYSTEM PUBLIC "${antlr_folder}")
target_compile_definitions(vorn_antlr_runtime PUBLIC ANTLR4CPP_STATIC)
target_compile_options(vorn_antlr_runtime PRIVATE -w)
set_target_properties(vorn_antlr_runtime PROPERTIES COMPILE_WARNING_AS_ERROR OFF)
target_link_libraries(vorn_antlr_runtime PUBLIC Threads::Threads)
# Compiling twenty files at a time takes a quarter of the time. Some files have local functions of the
# same name, so these files are compiled one by one.
set_target_properties(vorn_antlr_runtime PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 20)
foreach(source IN LISTS antlr_sources)
  file(STRINGS "${source}" shared_name REGEX "cachedHashCodeEqual" LIMIT_COUNT 1)
  if(shared_name)
    set_source_files_properties("${source}" PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
  endif()
endforeach()
