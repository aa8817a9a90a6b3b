# The warnings that our own code is free of. The ANTLR runtime and the generated sources are not ours.
function(vorn_own_code target)
  if(CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wconversion -Wshadow)
  endif()
endfunction()
