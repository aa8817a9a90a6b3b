# The ANTLR 4.10 C++ runtime as a static library that goes into ours: hidden there, it does not meet an
# ANTLR runtime of the host.
set(VORN_ANTLR_SOURCE "${PROJECT_SOURCE_DIR}/build/antlr4-runtime-4.10" CACHE PATH
    "Sources of the ANTLR 4.10 C++ runtime")
if(NOT EXISTS "${VORN_ANTLR_SOURCE}/src/antlr4-runtime.h")
  message(FATAL_ERROR "The sources of the ANTLR runtime are not in ${VORN_ANTLR_SOURCE}. "
                      "`make setup` puts them there.")
endif()

find_package(Threads REQUIRED)

file(GLOB_RECURSE antlr_sources "${VORN_ANTLR_SOURCE}/src/*.cpp")
add_library(vorn_antlr_runtime STATIC ${antlr_sources})
target_include_directories(vorn_antlr_runtime SYSTEM PUBLIC "${VORN_ANTLR_SOURCE}/src")
target_compile_definitions(vorn_antlr_runtime PUBLIC ANTLR4CPP_STATIC)
target_compile_options(vorn_antlr_runtime PRIVATE -w)
set_target_properties(vorn_antlr_runtime PROPERTIES COMPILE_WARNING_AS_ERROR OFF)
target_link_libraries(vorn_antlr_runtime PUBLIC Threads::Threads)
