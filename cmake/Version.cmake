# Reads the version from the public header, its only place.
set(VORN_VERSION "")
foreach(part IN ITEMS MAJOR MINOR PATCH)
  file(STRINGS "${CMAKE_CURRENT_LIST_DIR}/../include/vorn/vorn.h" line
       REGEX "^#define VORN_VERSION_${part} [0-9]+$")
  string(REGEX MATCH "[0-9]+$" number "${line}")
  list(APPEND VORN_VERSION ${number})
endforeach()
list(JOIN VORN_VERSION "." VORN_VERSION)
# A change of the header configures the build anew.
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS
  "${CMAKE_CURRENT_LIST_DIR}/../include/vorn/vorn.h")
