# Sources are UTF-8, which this compiler does not assume.
add_compile_options($<$<CXX_COMPILER_ID:MSVC>:/utf-8>)

option(VORN_COVERAGE "Let our own code count how often each line runs" OFF)
if(VORN_COVERAGE)
  add_link_options(--coverage)
endif()

# The warnings that our own code is free of. The ANTLR runtime and the generated sources are not ours.
function(vorn_own_code target)
  if(CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wconversion -Wshadow)
  elseif(MSVC)
    # Without a word on the attributes that are for others.
    target_compile_options(${target} PRIVATE /W4 /wd5030)
    # It warns of the C library's own functions otherwise.
    target_compile_definitions(${target} PRIVATE _CRT_SECURE_NO_WARNINGS)
  endif()
  if(VORN_COVERAGE)
    # Not optimised, so that each line is there; some tests count on many threads.
    target_compile_options(${target} PRIVATE --coverage -O0 -fprofile-update=atomic)
  endif()
  if(WIN32)
    # Otherwise windows.h has macros by the names of std::min and std::max.
    target_compile_definitions(${target} PRIVATE NOMINMAX)
  endif()
endfunction()
