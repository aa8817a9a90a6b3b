/*
 * Answers the questions on its input: lines of a question, an encoding and a length in bytes, such
 * as "usages utf8 3", each followed by that many bytes. Writes lines of words; strings are
 * hexadecimal.
 */
#include <stdint.h>
#include <vorn/vorn_c.h>

#include "host_io.h"

/* The input, which is aligned for both encodings. */
static uint16_t input[1 << 23];
static char output[1 << 16];
static size_t written;

static void flush(void) {
  write_output(output, written);
  written = 0;
}

static void write_byte(char byte) {
  if (written == sizeof output) {
    flush();
  }
  output[written++] = byte;
}

static void write_word(const char* word) {
  while (*word != 0) {
    write_byte(*word++);
  }
  write_byte(' ');
}

static void write_number(size_t number) {
  char digits[24];
  size_t count = 0;
  do {
    digits[count++] = (char)('0' + number % 10);
    number /= 10;
  } while (number != 0);
  while (count != 0) {
    write_byte(digits[--count]);
  }
  write_byte(' ');
}

static void write_unit(unsigned unit) {
  static const char digits[] = "0123456789abcdef";
  unsigned shift;
  for (shift = 16; shift != 0; shift -= 4) {
    write_byte(digits[unit >> (shift - 4) & 15U]);
  }
}

/* Everything that an answer tells, by the functions of one encoding. */
#define DEFINE_TELL(ENCODING, UNIT, UNSIGNED)                                               \
  static void write_string_##ENCODING(const char* word, const UNIT* units, size_t length) { \
    size_t i;                                                                               \
    if (units == NULL) {                                                                    \
      return;                                                                               \
    }                                                                                       \
    write_word(word);                                                                       \
    for (i = 0; i <= length; ++i) {                                                         \
      write_unit((UNSIGNED)units[i]);                                                       \
    }                                                                                       \
    write_byte('\n');                                                                       \
  }                                                                                         \
  static void tell_variable_##ENCODING(const vorn_answer* answer, size_t variable) {        \
    size_t length, i, access;                                                               \
    const UNIT* text = vorn_variable_name_##ENCODING(answer, variable, &length);            \
    write_string_##ENCODING("variable", text, length);                                      \
    for (i = 0; i != vorn_written_form_count(answer, variable); ++i) {                      \
      text = vorn_written_form_##ENCODING(answer, variable, i, &length);                    \
      write_string_##ENCODING("written", text, length);                                     \
    }                                                                                       \
    for (access = 0; access != vorn_access_count(answer, variable); ++access) {             \
      write_word("access");                                                                 \
      write_byte('\n');                                                                     \
      for (i = 0; i != vorn_property_count(answer, variable, access); ++i) {                \
        text = vorn_property_##ENCODING(answer, variable, access, i, &length);              \
        write_string_##ENCODING("property", text, length);                                  \
      }                                                                                     \
      for (i = 0; i != vorn_label_count(answer, variable, access); ++i) {                   \
        text = vorn_label_##ENCODING(answer, variable, access, i, &length);                 \
        write_string_##ENCODING("label", text, length);                                     \
      }                                                                                     \
    }                                                                                       \
  }                                                                                         \
  static void tell_##ENCODING(vorn_answer* answer) {                                        \
    size_t length, i;                                                                       \
    const UNIT* text = vorn_error_message_##ENCODING(answer, &length);                      \
    write_word("error");                                                                    \
    write_number((size_t)vorn_error_kind(answer));                                          \
    write_number(vorn_error_line(answer));                                                  \
    write_number(vorn_error_column(answer));                                                \
    write_number(vorn_error_offset(answer));                                                \
    write_number(vorn_expression_end(answer));                                              \
    write_string_##ENCODING("message", text, length);                                       \
    text = vorn_error_element_##ENCODING(answer, &length);                                  \
    write_string_##ENCODING("element", text, length);                                       \
    for (i = 0; i != vorn_column_count(answer); ++i) {                                      \
      text = vorn_column_name_##ENCODING(answer, i, &length);                               \
      write_number((size_t)vorn_column_type(answer, i));                                    \
      write_string_##ENCODING("column", text, length);                                      \
    }                                                                                       \
    for (i = 0; i != vorn_variable_count(answer); ++i) {                                    \
      tell_variable_##ENCODING(answer, i);                                                  \
    }                                                                                       \
    text = vorn_renamed_##ENCODING(answer, &length);                                        \
    write_string_##ENCODING("renamed", text, length);                                       \
    vorn_release(answer);                                                                   \
  }

DEFINE_TELL(utf8, char, unsigned char)
DEFINE_TELL(utf16, uint16_t, uint16_t)

static void rename_utf8(const char* text, size_t length) {
  const vorn_rename_pair_utf8 renames[] = {{"n", 1, "m", 1}, {"`x`", 3, "\xF0\x9F\x98\x80", 4}};
  tell_utf8(vorn_rename_utf8(text, length, renames, 2));
}

static void rename_utf16(const uint16_t* text, size_t length) {
  static const uint16_t n[] = {'n'}, m[] = {'m'}, x[] = {'`', 'x', '`'}, face[] = {0xD83D, 0xDE00};
  const vorn_rename_pair_utf16 renames[] = {{n, 1, m, 1}, {x, 3, face, 2}};
  tell_utf16(vorn_rename_utf16(text, length, renames, 2));
}

static void ask(char question, int is_utf16, size_t bytes) {
  const char* const text = (const char*)input;
  if (question == 'c' && is_utf16) {
    tell_utf16(vorn_columns_utf16(input, bytes / 2));
  } else if (question == 'c') {
    tell_utf8(vorn_columns_utf8(text, bytes));
  } else if (question == 'u' && is_utf16) {
    tell_utf16(vorn_usages_utf16(input, bytes / 2));
  } else if (question == 'u') {
    tell_utf8(vorn_usages_utf8(text, bytes));
  } else if (is_utf16) {
    rename_utf16(input, bytes / 2);
  } else {
    rename_utf8(text, bytes);
  }
}

/* The next line, without its end. Returns whether there is one. */
static int read_line(char* line, size_t size) {
  size_t length = 0;
  while (length != size && read_input(line + length, 1) == 1) {
    if (line[length] == '\n') {
      line[length] = 0;
      return 1;
    }
    ++length;
  }
  return 0;
}

int answer_all(void) {
  char line[64];
  while (read_line(line, sizeof line)) {
    const char* word = line;
    size_t length = 0;
    size_t missing;
    int is_utf16;
    while (*word++ != ' ') {
    }
    is_utf16 = word[3] == '1';
    while (*word++ != ' ') {
    }
    while (*word != 0) {
      length = length * 10 + (size_t)(*word++ - '0');
    }
    if (length > sizeof input) {
      return 1;
    }
    for (missing = length; missing != 0;) {
      const size_t read = read_input((char*)input + length - missing, missing);
      if (read == 0) {
        return 1;
      }
      missing -= read;
    }
    ask(line[0], is_utf16, length);
    write_byte('\n');
  }
  write_word(vorn_version());
  flush();
  return 0;
}
