#include "SymbolicName.h"

namespace vorn {

std::string quoteSymbolicName(std::string_view name) {
  if (!name.empty() && name.front() == '`') {
    return std::string(name);
  }
  // The quotes around the name, and room for two back quotes inside it to be doubled.
  constexpr std::size_t room = 4;
  std::string quoted;
  quoted.reserve(name.size() + room);
  quoted += '`';
  for (std::size_t at = name.find('`'); at != std::string_view::npos; at = name.find('`')) {
    quoted.append(name.substr(0, at)).append("``");
    name.remove_prefix(at + 1);
  }
  return quoted.append(name).append("`");
}

std::string unquoteSymbolicName(std::string_view text) {
  const std::size_t bare = text.find('`');
  if (bare == std::string_view::npos) {
    return std::string(text);
  }
  std::string unquoted(text.substr(0, bare));
  unquoted.reserve(text.size());
  bool escaped = false;
  for (std::size_t i = bare; i < text.size(); ++i) {
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
