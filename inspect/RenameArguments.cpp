#include "RenameArguments.h"

#include <algorithm>
#include <cstddef>
#include <set>
#include <string_view>
#include <utility>

#include "InputOutput.h"

namespace inspect {

namespace {

// A doubled back quote inside a quoted name closes and reopens the quotes, which changes nothing
// here.
std::size_t findOutsideBackQuotes(std::string_view text, char wanted, std::size_t start = 0) {
  bool quoted = false;
  for (std::size_t i = start; i < text.size(); ++i) {
    if (text[i] == '`') {
      quoted = !quoted;
    } else if (text[i] == wanted && !quoted) {
      return i;
    }
  }
  return std::string_view::npos;
}

// A name with an equals sign behind a comma or a blank may be meant as two names.
bool listsSeveral(std::string_view argument, std::size_t equals) {
  const std::size_t separator = std::min(findOutsideBackQuotes(argument, ',', equals + 1),
                                         findOutsideBackQuotes(argument, ' ', equals + 1));
  return separator != std::string_view::npos &&
         findOutsideBackQuotes(argument, '=', separator + 1) != std::string_view::npos;
}

// A variable has one name, with back quotes or without.
std::string nameInQuotes(const std::string& name) {
  return name.front() == '`' ? name : '`' + name + '`';
}

std::pair<std::string, std::string> parseRenameArgument(std::string_view argument) {
  const std::size_t equals = findOutsideBackQuotes(argument, '=');
  if (equals == std::string_view::npos || equals == 0 || equals + 1 == argument.size()) {
    throw UsageError("give --map an old and a new name, as in --map old=new, and not '" +
                     std::string(argument) + "'.");
  }
  if (listsSeveral(argument, equals)) {
    throw UsageError("give each variable a --map of its own, as in --map a=b --map c=d, and not '" +
                     std::string(argument) +
                     "'; put a new name that holds an equals sign between back quotes.");
  }
  return {std::string(argument.substr(0, equals)), std::string(argument.substr(equals + 1))};
}

}  // namespace

Json renamesFrom(const std::vector<std::string>& arguments) {
  Json renames = Json::object();
  std::set<std::string> renamed;
  for (const std::string& argument : arguments) {
    requireUtf8(argument, "a name for --map");
    auto [oldName, newName] = parseRenameArgument(argument);
    if (!renamed.insert(nameInQuotes(oldName)).second) {
      throw UsageError("give each variable one new name; '" + oldName + "' has two.");
    }
    renames[oldName] = std::move(newName);
  }
  return renames;
}

}  // namespace inspect
