#include <vorn/vorn.h>

#include <unordered_map>
#include <utility>

#include "Command.h"
#include "DisplayText.h"
#include "Request.h"
#include "System.h"
#include "Utf16.h"

namespace inspect {

namespace {

std::unordered_map<vorn::WideString, vorn::WideString> renamesOf(const Json& request) {
  const auto member = request.find("renames");
  if (member == request.end() || !member->is_object()) {
    throw InputError("The line is no JSON object with an object \"renames\".");
  }
  std::unordered_map<vorn::WideString, vorn::WideString> renames;
  for (const auto& [oldName, newName] : member->items()) {
    if (!newName.is_string()) {
      throw InputError("A new name in \"renames\" is no string.");
    }
    renames.emplace(toUtf16(oldName), toUtf16(newName.get_ref<const std::string&>()));
  }
  return renames;
}

std::string renamedExpression(const Json& request) {
  const vorn::WideString expression = toUtf16(textMember(request, "expression"));
  return toUtf8(
      vorn::ReplaceVariableNamesInPropertyFilterOCExpression(expression, renamesOf(request)));
}

Answer answer(const Json& request) {
  OrderedJson json;
  json["expression"] = renamedExpression(request);
  return {std::move(json), true};
}

// Into a file or another program the text goes as it is.
std::string report(const Json& request) {
  const std::string expression = renamedExpression(request);
  return (outputIsWatched() ? escapeControlsInLines(expression) : expression) + '\n';
}

}  // namespace

const Command renameCommand = {
    "rename",
    "Rename variables in a property filter",
    "expression",
    "filter",
    true,
    R"({"expression":"n.age > 30","renames":{"n":"m"}}
    {"expression":"`m`.age > 30"})",
    answer,
    report,
};

}  // namespace inspect
