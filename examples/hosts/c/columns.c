/* columns.c: prints the columns that a query returns, or what is wrong with it and where. */
#include <stdio.h>
#include <string.h>
#include <vorn/vorn_c.h>

static const char* name_of(int32_t type) {
  switch (type) {
    case VORN_NODE:
      return "a node";
    case VORN_RELATIONSHIP:
      return "a relationship";
    case VORN_PATH:
      return "a path";
    case VORN_NODE_OR_RELATIONSHIP:
      return "a node or a relationship";
    default:
      return "something else";
  }
}

int main(int argc, char** argv) {
  const char* query = argc == 2 ? argv[1] : "";
  vorn_answer* answer = vorn_columns_utf8(query, strlen(query));
  const int failed = vorn_error_kind(answer) != VORN_NO_ERROR;
  size_t i;
  if (failed) {
    fprintf(stderr, "%u:%u: %s\n", (unsigned)vorn_error_line(answer),
            (unsigned)vorn_error_column(answer), vorn_error_message_utf8(answer, NULL));
  }
  for (i = 0; i != vorn_column_count(answer); ++i) {
    printf("%s: %s\n", vorn_column_name_utf8(answer, i, NULL),
           name_of(vorn_column_type(answer, i)));
  }
  vorn_release(answer);
  return failed;
}
