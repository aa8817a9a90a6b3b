#include "Ask.h"

#include <utf8.h>

#include <iterator>
#include <stdexcept>

namespace c_interface {

namespace {

// The functions of one encoding.
struct InUtf8 {
  using Unit = char;
  using String = std::string;
  using Pair = vorn_rename_pair_utf8;
  static constexpr auto columns = vorn_columns_utf8;
  static constexpr auto usages = vorn_usages_utf8;
  static constexpr auto rename = vorn_rename_utf8;
  static constexpr auto message = vorn_error_message_utf8;
  static constexpr auto element = vorn_error_element_utf8;
  static constexpr auto columnName = vorn_column_name_utf8;
  static constexpr auto variableName = vorn_variable_name_utf8;
  static constexpr auto writtenForm = vorn_written_form_utf8;
  static constexpr auto property = vorn_property_utf8;
  static constexpr auto label = vorn_label_utf8;
  static constexpr auto renamed = vorn_renamed_utf8;

  static String from(std::string_view text) { return String(text); }
  static std::string narrow(const Unit* first, std::size_t length) { return {first, length}; }
};

struct InUtf16 {
  using Unit = std::uint16_t;
  using String = std::vector<std::uint16_t>;
  using Pair = vorn_rename_pair_utf16;
  static constexpr auto columns = vorn_columns_utf16;
  static constexpr auto usages = vorn_usages_utf16;
  static constexpr auto rename = vorn_rename_utf16;
  static constexpr auto message = vorn_error_message_utf16;
  static constexpr auto element = vorn_error_element_utf16;
  static constexpr auto columnName = vorn_column_name_utf16;
  static constexpr auto variableName = vorn_variable_name_utf16;
  static constexpr auto writtenForm = vorn_written_form_utf16;
  static constexpr auto property = vorn_property_utf16;
  static constexpr auto label = vorn_label_utf16;
  static constexpr auto renamed = vorn_renamed_utf16;

  static String from(std::string_view text) {
    String units;
    utf8::utf8to16(text.begin(), text.end(), std::back_inserter(units));
    return units;
  }
  static std::string narrow(const Unit* first, std::size_t length) {
    std::string text;
    utf8::utf16to8(first, std::next(first, static_cast<std::ptrdiff_t>(length)),
                   std::back_inserter(text));
    return text;
  }
};

// What an accessor gives. A zero must stand behind it, and the length may be left unasked.
template <typename Functions, typename Accessor, typename... Places>
std::string string(const Accessor& accessor, const vorn_answer* answer, Places... places) {
  std::size_t length = 0;
  const typename Functions::Unit* const first = accessor(answer, places..., &length);
  if (first == nullptr || *std::next(first, static_cast<std::ptrdiff_t>(length)) != 0 ||
      accessor(answer, places..., nullptr) != first) {
    throw std::logic_error("this is no string");
  }
  return Functions::narrow(first, length);
}

// `count` strings, of which the last place counts.
template <typename Functions, typename Accessor, typename... Places>
std::vector<std::string> strings(std::size_t count, const Accessor& accessor,
                                 const vorn_answer* answer, Places... places) {
  std::vector<std::string> all;
  for (std::size_t i = 0; i != count; ++i) {
    all.push_back(string<Functions>(accessor, answer, places..., i));
  }
  return all;
}

template <typename Functions>
Answer answerTo(Kind kind, std::string_view text, const Renames& renames) {
  using String = typename Functions::String;
  const String units = Functions::from(text);
  if (kind == Kind::Columns) {
    return Answer(Functions::columns(units.data(), units.size()));
  }
  if (kind == Kind::Usages) {
    return Answer(Functions::usages(units.data(), units.size()));
  }
  std::vector<std::pair<String, String>> names;
  for (const auto& [from, to] : renames) {
    names.emplace_back(Functions::from(from), Functions::from(to));
  }
  std::vector<typename Functions::Pair> pairs;
  for (const auto& [from, to] : names) {
    pairs.push_back({from.data(), from.size(), to.data(), to.size()});
  }
  return Answer(Functions::rename(units.data(), units.size(), pairs.data(), pairs.size()));
}

template <typename Functions>
Told toldBy(Kind kind, std::string_view text, const Renames& renames) {
  const Answer owner = answerTo<Functions>(kind, text, renames);
  const vorn_answer* const answer = owner.get();
  Told told;
  told.error = vorn_error_kind(answer);
  told.line = vorn_error_line(answer);
  told.column = vorn_error_column(answer);
  told.offset = vorn_error_offset(answer);
  told.message = string<Functions>(Functions::message, answer);
  told.element = string<Functions>(Functions::element, answer);
  for (std::size_t i = 0; i != vorn_column_count(answer); ++i) {
    told.columns.emplace_back(string<Functions>(Functions::columnName, answer, i),
                              vorn_column_type(answer, i));
  }
  for (std::size_t i = 0; i != vorn_variable_count(answer); ++i) {
    Variable variable;
    variable.name = string<Functions>(Functions::variableName, answer, i);
    variable.writtenForms =
        strings<Functions>(vorn_written_form_count(answer, i), Functions::writtenForm, answer, i);
    for (std::size_t j = 0; j != vorn_access_count(answer, i); ++j) {
      variable.accesses.push_back(
          {strings<Functions>(vorn_property_count(answer, i, j), Functions::property, answer, i, j),
           strings<Functions>(vorn_label_count(answer, i, j), Functions::label, answer, i, j)});
    }
    told.variables.push_back(variable);
  }
  if (Functions::renamed(answer, nullptr) != nullptr) {
    told.renamed = string<Functions>(Functions::renamed, answer);
  }
  told.expressionEnd = vorn_expression_end(answer);
  return told;
}

}  // namespace

std::ostream& operator<<(std::ostream& out, Encoding encoding) {
  return out << (encoding == Encoding::Utf8 ? "Utf8" : "Utf16");
}

Told ask(Encoding encoding, Kind kind, std::string_view text, const Renames& renames) {
  return encoding == Encoding::Utf8 ? toldBy<InUtf8>(kind, text, renames)
                                    : toldBy<InUtf16>(kind, text, renames);
}

std::size_t lengthIn(Encoding encoding, std::string_view text) {
  return encoding == Encoding::Utf8 ? text.size() : InUtf16::from(text).size();
}

std::string lineOf(const Variable& variable) {
  std::string line = variable.name + " written";
  for (const std::string& form : variable.writtenForms) {
    line += " " + form;
  }
  for (const Access& access : variable.accesses) {
    line += " reads";
    for (const std::string& key : access.properties) {
      line += " ." + key;
    }
    for (const std::string& label : access.labels) {
      line += " :" + label;
    }
  }
  return line;
}

std::string lineOf(const Told& told) {
  std::string line = std::to_string(told.error) + " at " + std::to_string(told.line) + ":" +
                     std::to_string(told.column) + " " + told.message + " " + told.element;
  for (const auto& [name, type] : told.columns) {
    line += ", " + name + " " + std::to_string(type);
  }
  for (const Variable& variable : told.variables) {
    line += ", " + lineOf(variable);
  }
  return line + (told.renamed ? ", " + *told.renamed : "");
}

}  // namespace c_interface
