/* The host on the C library of its compiler. */
#include <stdio.h>
#if defined(_WIN32)
#include <fcntl.h>
#include <io.h>
#endif

#include "host_io.h"

size_t read_input(char* bytes, size_t size) { return fread(bytes, 1, size, stdin); }

void write_output(const char* bytes, size_t length) { fwrite(bytes, 1, length, stdout); }

int main(void) {
#if defined(_WIN32)
  _setmode(_fileno(stdin), _O_BINARY);
  _setmode(_fileno(stdout), _O_BINARY);
#endif
  return answer_all();
}
