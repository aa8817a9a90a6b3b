# Copies the DLLs that every program built with mingw-w64 needs. They go beside VornLib.dll, where Windows
# looks for them.
if(NOT MINGW)
  return()
endif()

set(VORN_COMPILER_RUNTIME)
foreach(name IN ITEMS libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
  execute_process(COMMAND "${CMAKE_CXX_COMPILER}" "-print-file-name=${name}"
    OUTPUT_VARIABLE file OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
  # The compiler returns the bare name of a file that it does not find.
  if(NOT IS_ABSOLUTE "${file}")
    message(FATAL_ERROR "The compiler does not know where its ${name} is.")
  endif()
  list(APPEND VORN_COMPILER_RUNTIME "${file}")
endforeach()
file(COPY ${VORN_COMPILER_RUNTIME} DESTINATION "${PROJECT_BINARY_DIR}")
