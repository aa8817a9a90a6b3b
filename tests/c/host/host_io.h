#ifndef HOST_IO_H
#define HOST_IO_H

#include <stddef.h>

/* What a host of one runtime or another has for its input and output. */

/* Reads as much as there is, up to the size; 0 at the end. */
size_t read_input(char* bytes, size_t size);

void write_output(const char* bytes, size_t length);

/* What the program does. Returns its exit status. */
int answer_all(void);

#endif
