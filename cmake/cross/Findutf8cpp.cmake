include(HostHeaders)
if(NOT TARGET utf8cpp)
  # Its headers name each other without the folder.
  vorn_host_headers(utf8cpp utf8cpp /usr/include/utf8cpp)
endif()
set(utf8cpp_FOUND TRUE)
