#include <utf8.h>
#include <utf8proc.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "Command.h"
#include "Table.h"

namespace inspect {

namespace {

using Names = std::vector<std::string>;

// One access as the library tells it, with all names between back quotes.
struct Access {
  Names propertyPath;
  Names labels;
};

struct Usage {
  std::string name;
  Names writtenForms;
  std::vector<Access> accesses;
};

Analysis ask(const Json& request) {
  const std::string& expression = textMember(request, "expression");
  return Analysis(vorn_usages_utf8(expression.data(), expression.size()));
}

template <typename Accessor, typename... Indices>
Names namesOf(const Analysis& analysis, std::size_t count, Accessor accessor, Indices... indices) {
  Names names;
  for (std::size_t i = 0; i < count; ++i) {
    names.emplace_back(textOf(analysis, accessor, indices..., i));
  }
  return names;
}

std::vector<Usage> usagesOf(const Analysis& analysis) {
  const vorn_answer* answer = analysis.get();
  std::vector<Usage> usages;
  for (std::size_t i = 0; i < vorn_variable_count(answer); ++i) {
    Usage& usage = usages.emplace_back();
    usage.name = textOf(analysis, vorn_variable_name_utf8, i);
    usage.writtenForms =
        namesOf(analysis, vorn_written_form_count(answer, i), vorn_written_form_utf8, i);
    for (std::size_t k = 0; k < vorn_access_count(answer, i); ++k) {
      usage.accesses.push_back(
          {namesOf(analysis, vorn_property_count(answer, i, k), vorn_property_utf8, i, k),
           namesOf(analysis, vorn_label_count(answer, i, k), vorn_label_utf8, i, k)});
    }
  }
  return usages;
}

OrderedJson json(const Analysis& analysis) {
  OrderedJson list = OrderedJson::array();
  for (const Usage& usage : usagesOf(analysis)) {
    OrderedJson accesses = OrderedJson::array();
    for (const Access& access : usage.accesses) {
      accesses.push_back({{"propertyPath", access.propertyPath}, {"labels", access.labels}});
    }
    list.push_back({{"name", usage.name},
                    {"writtenForms", usage.writtenForms},
                    {"accesses", std::move(accesses)}});
  }
  OrderedJson answer;
  answer["usages"] = std::move(list);
  return answer;
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

// All names come between back quotes, but few of them need these.
std::string readable(const std::string& quoted) {
  std::string name = quoted.substr(1, quoted.size() - 2);
  return isPlainWord(name) ? name : quoted;
}

std::string readable(const std::string& variable, const Access& access) {
  std::string text = readable(variable);
  for (const std::string& key : access.propertyPath) {
    text += '.' + readable(key);
  }
  for (const std::string& label : access.labels) {
    text += ':' + readable(label);
  }
  return text;
}

std::string joined(const Names& writtenForms) {
  std::string text;
  for (const std::string& form : writtenForms) {
    text += (text.empty() ? "" : ", ") + form;
  }
  return text;
}

std::string report(const Analysis& analysis) {
  const std::vector<Usage> usages = usagesOf(analysis);
  if (usages.empty()) {
    return "The filter uses no variables.\n";
  }
  Table table({"Variable", "Written as", "Reads"});
  for (const Usage& usage : usages) {
    Table::Row row = {readable(usage.name), joined(usage.writtenForms), ""};
    for (const Access& access : usage.accesses) {
      row.back() = readable(usage.name, access);
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
    true,
    false,
    R"({"expression":"n.age > 30"}
    {"usages":[{"name":"`n`","writtenForms":["n"],"accesses":[{"propertyPath":["`age`"],"labels":[]}]}]})",
    ask,
    json,
    report,
};

}  // namespace inspect
