/*
 * A host that knows the header only and looks the functions up at run time. Prints the columns of
 * its argument.
 *
 *     loading LIBRARY QUERY
 */
#include <stdio.h>
#include <string.h>
#include <vorn/vorn_c.h>
#if defined(_WIN32)
#include <windows.h>
#else
#include <dlfcn.h>
#endif

typedef void (*function)(void);

static int missing;

#if defined(_WIN32)
static function look_up(void* library, const char* name) {
  return (function)GetProcAddress((HMODULE)library, name);
}
static void* load(const char* path) { return LoadLibraryA(path); }
static int unload(void* library) { return FreeLibrary((HMODULE)library) ? 0 : 1; }
#else
static function look_up(void* library, const char* name) {
  function found;
  void* const address = dlsym(library, name);
  memcpy(&found, &address, sizeof found);
  return found;
}
static void* load(const char* path) { return dlopen(path, RTLD_NOW | RTLD_LOCAL); }
static int unload(void* library) { return dlclose(library); }
#endif

static function find(void* library, const char* name) {
  const function found = look_up(library, name);
  if (found == NULL) {
    fprintf(stderr, "%s is missing\n", name);
    missing = 1;
  }
  return found;
}

int main(int argc, char** argv) {
  typedef vorn_answer* (*columns_function)(const char*, size_t);
  typedef void (*release_function)(vorn_answer*);
  typedef int32_t (*kind_function)(const vorn_answer*);
  typedef size_t (*count_function)(const vorn_answer*);
  typedef const char* (*message_function)(const vorn_answer*, size_t*);
  typedef const char* (*name_function)(const vorn_answer*, size_t, size_t*);
  void* const library = argc == 3 ? load(argv[1]) : NULL;
  columns_function columns;
  release_function release;
  kind_function kind;
  count_function count;
  message_function message;
  name_function name;
  vorn_answer* answer;
  size_t i;
  if (library == NULL) {
    fprintf(stderr, "no library\n");
    return 1;
  }
  columns = (columns_function)find(library, "vorn_columns_utf8");
  release = (release_function)find(library, "vorn_release");
  kind = (kind_function)find(library, "vorn_error_kind");
  count = (count_function)find(library, "vorn_column_count");
  message = (message_function)find(library, "vorn_error_message_utf8");
  name = (name_function)find(library, "vorn_column_name_utf8");
  if (missing) {
    return 1;
  }
  answer = columns(argv[2], strlen(argv[2]));
  if (kind(answer) == VORN_NO_ERROR) {
    for (i = 0; i != count(answer); ++i) {
      puts(name(answer, i, NULL));
    }
  } else {
    puts(message(answer, NULL));
  }
  release(answer);
  return unload(library);
}
