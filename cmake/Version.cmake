# The version stands in the public header only.
set(VORN_VERSION "")
foreach(part IN ITEMS MAJOR MINOR PATCH)
  file(STRINGS "${CMAKE_CURRENT_LIST_DIR}/../include/vorn/vorn.h" line
       REGEX "^#define VORN_VERSION_${part} [0-9]+$")
  string(REGEX MATCH "[0-9]+$" number "${line}")
  list(APPEND VORN_VERSION ${number})
endforeach()
list(JOIN VORN_VERSION "." VORN_VERSION)
# Who changes it there need not remember to configure anew.
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS
  "${CMAKE_CURRENT_LIST_DIR}/../include/vorn/vorn.h")
