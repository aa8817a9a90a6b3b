#include <string>
#include <string_view>
#include <vector>

#include "Command.h"
#include "DisplayText.h"
#include "System.h"

namespace inspect {

namespace {

// The pairs refer to strings of the request.
std::vector<vorn_rename_pair_utf8> renamesOf(const Json& request) {
  const auto member = request.find("renames");
  if (member == request.end() || !member->is_object()) {
    throw InputError("The line is no JSON object with an object \"renames\".");
  }
  std::vector<vorn_rename_pair_utf8> renames;
  for (const auto& [oldName, newName] : member->items()) {
    if (!newName.is_string()) {
      throw InputError("A new name in \"renames\" is no string.");
    }
    const auto& to = newName.get_ref<const std::string&>();
    renames.push_back({oldName.data(), oldName.size(), to.data(), to.size()});
  }
  return renames;
}

Analysis ask(const Json& request) {
  const std::string& expression = textMember(request, "expression");
  const std::vector<vorn_rename_pair_utf8> renames = renamesOf(request);
  return Analysis(
      vorn_rename_utf8(expression.data(), expression.size(), renames.data(), renames.size()));
}

OrderedJson json(const Analysis& analysis) {
  OrderedJson answer;
  answer["expression"] = textOf(analysis, vorn_renamed_utf8);
  return answer;
}

// A file or another program gets the text as it is.
std::string report(const Analysis& analysis) {
  const std::string_view expression = textOf(analysis, vorn_renamed_utf8);
  return (outputIsWatched() ? escapeControlsInLines(expression) : std::string(expression)) + '\n';
}

}  // namespace

const Command renameCommand = {
    "rename",
    "Rename variables in a property filter",
    "expression",
    "filter",
    true,
    true,
    R"({"expression":"n.age > 30","renames":{"n":"m"}}
    {"expression":"`m`.age > 30"})",
    ask,
    json,
    report,
};

}  // namespace inspect
