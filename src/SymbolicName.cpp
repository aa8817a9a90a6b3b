#include "SymbolicName.h"

namespace vorn {

std::string quoteSymbolicName(std::string_view name) {
  if (!name.empty() && name.front() == '`') {
    return std::string(name);
  }
  // The quotes around the name, and room for two back quotes inside it to be doubled.
  constexpr std::size_t room = 6;
  std::string quoted;
  quoted.reserve(name.size() + room);
  quoted += '`';
  for (const char c : name) {
    quoted += c;
    if (c == '`') {
      quoted += '`';
    }
  }
  quoted += '`';
  return quoted;
}

std::string unquoteSymbolicName(std::string_view text) {
  std::string unquoted;
  unquoted.reserve(text.size());
  bool escaped = false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] != '`') {
      unquoted += text[i];
    } else if (!escaped) {
      escaped = true;
    } else if (i + 1 < text.size()) {
      if (text[i + 1] == '`') {
        unquoted += '`';
        ++i;
      } else {
        escaped = false;
      }
    }
  }
  return unquoted;
}

}  // namespace vorn
