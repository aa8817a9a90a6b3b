# Microsoft's compiler does not assume that sources are UTF-8.
add_compile_options($<$<CXX_COMPILER_ID:MSVC>:/utf-8>)

option(VORN_COVERAGE "Let our own code count how often each line runs" OFF)
if(VORN_COVERAGE)
  add_link_options(--coverage)
endif()

# vorn_own_code(target): turns on the warnings that our own code must be free of. The ANTLR runtime and
# the generated sources are not our own.
function(vorn_own_code target)
  if(CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wconversion -Wshadow)
  elseif(MSVC)
    # Warning 5030 is off: the code has attributes of other compilers.
    target_compile_options(${target} PRIVATE /W4 /wd5030)
    # Without this the compiler warns of functions of the C library.
    target_compile_definitions(${target} PRIVATE _CRT_SECURE_NO_WARNINGS)
  endif()
  if(VORN_COVERAGE)
    # No optimisation, so that no line disappears. Atomic counters, since some tests have many threads.
    target_compile_options(${target} PRIVATE --coverage -O0 -fprofile-update=atomic)
  endif()
  if(WIN32)
    # Without this windows.h defines macros min and max, which break std::min and std::max.
    target_compile_definitions(${target} PRIVATE NOMINMAX)
  endif()
endfunction()
