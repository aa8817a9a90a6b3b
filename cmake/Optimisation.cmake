# The two steps of profile-guided optimisation, which tools/build-optimised.sh takes one after the other
# in one build folder: objects find their profile by where they lie. Library, recognisers and runtime are
# optimised together at link time in both.
set(VORN_PROFILE "" CACHE STRING "generate: count while running; use: optimise by what was counted")
set_property(CACHE VORN_PROFILE PROPERTY STRINGS "" generate use)

if(VORN_PROFILE)
  if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    message(FATAL_ERROR "VORN_PROFILE is for GCC.")
  endif()
  set(CMAKE_INTERPROCEDURAL_OPTIMIZATION ON)
  if(VORN_PROFILE STREQUAL "generate")
    add_compile_options(-fprofile-generate)
    add_link_options(-fprofile-generate)
  else()
    # What the training never ran has no profile, and is optimised for size.
    add_compile_options(-fprofile-use -Wno-missing-profile)
    add_link_options(-fprofile-use)
  endif()
endif()
