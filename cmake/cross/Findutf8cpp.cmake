include(HostHeaders)
if(NOT TARGET utf8cpp)
  # The headers include each other without the name of their folder.
  vorn_host_headers(utf8cpp utf8cpp /usr/include/utf8cpp)
endif()
set(utf8cpp_FOUND TRUE)
