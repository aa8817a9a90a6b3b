#include <utf8.h>
#include <utf8proc.h>
#include <vorn/vorn.h>

#include <map>
#include <set>
#include <string_view>
#include <utility>

#include "Command.h"
#include "Request.h"
#include "Table.h"
#include "Utf16.h"

namespace inspect {

namespace {

using Usages = std::map<vorn::WideString, vorn::VariableUsage>;

Usages usagesOf(const Json& request) {
  return vorn::GetVariableUsagesInPropertyFilterOCExpression(
      toUtf16(textMember(request, "expression")));
}

template <typename Names>
OrderedJson jsonList(const Names& names) {
  OrderedJson list = OrderedJson::array();
  for (const vorn::WideString& name : names) {
    list.push_back(toUtf8(name));
  }
  return list;
}

OrderedJson toJson(const std::set<vorn::VariableAccess>& accesses) {
  OrderedJson list = OrderedJson::array();
  for (const vorn::VariableAccess& access : accesses) {
    list.push_back(
        {{"propertyPath", jsonList(access.propertyPath)}, {"labels", jsonList(access.labels)}});
  }
  return list;
}

Answer answer(const Json& request) {
  OrderedJson list = OrderedJson::array();
  for (const auto& [name, usage] : usagesOf(request)) {
    list.push_back({{"name", toUtf8(name)},
                    {"writtenForms", jsonList(usage.writtenForms)},
                    {"accesses", toJson(usage.accesses)}});
  }
  OrderedJson json;
  json["usages"] = std::move(list);
  return {std::move(json), true};
}

bool isWordStart(utf8proc_category_t category) {
  return (category >= UTF8PROC_CATEGORY_LU && category <= UTF8PROC_CATEGORY_LO) ||
         category == UTF8PROC_CATEGORY_NL || category == UTF8PROC_CATEGORY_PC;
}

bool isWordPart(utf8proc_category_t category) {
  return isWordStart(category) || category == UTF8PROC_CATEGORY_ND ||
         category == UTF8PROC_CATEGORY_MN || category == UTF8PROC_CATEGORY_MC;
}

bool isPlainWord(std::string_view name) {
  for (std::string_view::const_iterator at = name.begin(); at != name.end();) {
    const bool first = at == name.begin();
    const utf8proc_category_t category =
        utf8proc_category(static_cast<utf8proc_int32_t>(utf8::next(at, name.end())));
    if (first ? !isWordStart(category) : !isWordPart(category)) {
      return false;
    }
  }
  return !name.empty();
}

// All names come between back quotes, which most of them can do without.
std::string readable(const vorn::WideString& quotedName) {
  std::string quoted = toUtf8(quotedName);
  std::string name = quoted.substr(1, quoted.size() - 2);
  return isPlainWord(name) ? name : quoted;
}

std::string readable(const vorn::WideString& variable, const vorn::VariableAccess& access) {
  std::string text = readable(variable);
  for (const vorn::WideString& key : access.propertyPath) {
    text += '.' + readable(key);
  }
  for (const vorn::WideString& label : access.labels) {
    text += ':' + readable(label);
  }
  return text;
}

std::string joined(const std::set<vorn::WideString>& writtenForms) {
  std::string text;
  for (const vorn::WideString& form : writtenForms) {
    text += (text.empty() ? "" : ", ") + toUtf8(form);
  }
  return text;
}

std::string report(const Json& request) {
  const Usages usages = usagesOf(request);
  if (usages.empty()) {
    return "The filter uses no variables.\n";
  }
  Table table({"Variable", "Written as", "Reads"});
  for (const auto& [name, usage] : usages) {
    Table::Row row = {readable(name), joined(usage.writtenForms), ""};
    for (const vorn::VariableAccess& access : usage.accesses) {
      row.back() = readable(name, access);
      table.addRow(row);
      row = {"", "", ""};
    }
  }
  return table.text();
}

}  // namespace

const Command usagesCommand = {
    "usages",
    "Show which variables a property filter uses, and what it reads from each",
    "expression",
    "filter",
    false,
    R"({"expression":"n.age > 30"}
    {"usages":[{"name":"`n`","writtenForms":["n"],"accesses":[{"propertyPath":["`age`"],"labels":[]}]}]})",
    answer,
    report,
};

}  // namespace inspect
