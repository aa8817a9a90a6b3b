#include "Arguments.h"

#include <utf8.h>
#include <windows.h>
// Needs windows.h before it.
#include <shellapi.h>

#include <memory>

#include "UsageError.h"
#include "Utf16.h"

namespace inspect {

// What main is given has gone through the system's code page, which has not all characters.
std::vector<std::string> argumentsInUtf8(int /*argc*/, const char* const* /*argv*/) {
  int count = 0;
  const std::unique_ptr<LPWSTR, decltype(&LocalFree)> list(
      CommandLineToArgvW(GetCommandLineW(), &count), LocalFree);
  std::vector<std::string> arguments;
  for (int i = 0; list != nullptr && i < count; ++i) {
    try {
      arguments.push_back(toUtf8(list.get()[i]));
    } catch (const utf8::exception&) {
      throw UsageError("argument " + std::to_string(i) +
                       " holds half a character of UTF-16; give all of it.");
    }
  }
  return arguments;
}

}  // namespace inspect
