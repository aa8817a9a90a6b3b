# vorn_host_headers(target name): adds an imported target with the headers in /usr/include/NAME only. The
# other headers of /usr/include are for this system, not for the one that is built for.
function(vorn_host_headers target name)
  if(NOT EXISTS "/usr/include/${name}")
    message(FATAL_ERROR "/usr/include/${name} is missing; its package is in tools/install-packages.sh.")
  endif()
  set(folder "${CMAKE_BINARY_DIR}/host-headers/${name}")
  file(MAKE_DIRECTORY "${folder}")
  file(CREATE_LINK "/usr/include/${name}" "${folder}/${name}" SYMBOLIC)
  add_library(${target} INTERFACE IMPORTED)
  target_include_directories(${target} SYSTEM INTERFACE "${folder}" ${ARGN})
endfunction()
