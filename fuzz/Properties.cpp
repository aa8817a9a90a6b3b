#include "Properties.h"

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <map>
#include <new>
#include <set>
#include <stdexcept>
#include <string>
#include <typeinfo>
#include <utility>
#include <vector>

using vorn::CypherType;
using vorn::WideChar;
using vorn::WideString;

namespace {

using Columns = std::vector<std::pair<WideString, CypherType>>;
using Usages = std::map<WideString, vorn::VariableUsage>;

constexpr WideChar backQuote = 0x60;
constexpr WideChar byteOrderMark = 0xFEFF;
constexpr WideChar lineFeed = 0x0A;

WideString wide(const char* ascii) {
  const std::string text(ascii);
  return {text.begin(), text.end()};
}

bool startsWith(const WideString& text, const WideString& start) {
  return text.compare(0, start.size(), start) == 0;
}

bool holds(const WideString& text, const WideString& part) {
  return text.find(part) != WideString::npos;
}

WideString withoutByteOrderMark(const WideString& text) {
  return !text.empty() && text.front() == byteOrderMark ? text.substr(1) : text;
}

bool isSurrogate(WideChar unit, unsigned kind) { return (unit & 0xFC00U) == kind; }

bool isWellFormed(const WideString& text) {
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool paired =
        isSurrogate(text[i], 0xD800U) && i + 1 < text.size() && isSurrogate(text[i + 1], 0xDC00U);
    if (!paired && (isSurrogate(text[i], 0xD800U) || isSurrogate(text[i], 0xDC00U))) {
      return false;
    }
    i += paired ? 1U : 0U;
  }
  return true;
}

// The rule of names written a second time, on UTF-16: a name that begins with a back quote counts
// as quoted.
WideString quoted(const WideString& name) {
  if (!name.empty() && name.front() == backQuote) {
    return name;
  }
  WideString result(1, backQuote);
  for (const WideChar unit : name) {
    result.append(unit == backQuote ? 2 : 1, unit);
  }
  return result + backQuote;
}

// Whether this is a single quoted name, with the back quotes inside it doubled.
bool isQuotedName(const WideString& name) {
  if (name.size() < 2 || name.front() != backQuote || name.back() != backQuote) {
    return false;
  }
  for (std::size_t i = 1; i + 1 < name.size(); ++i) {
    if (name[i] == backQuote && (i + 2 >= name.size() || name[++i] != backQuote)) {
      return false;
    }
  }
  return true;
}

WideString withoutBackQuotes(WideString text) {
  text.erase(std::remove(text.begin(), text.end(), backQuote), text.end());
  return text;
}

bool isProduced(CypherType type) {
  return type == CypherType::Unknown || type == CypherType::Node ||
         type == CypherType::Relationship || type == CypherType::Path ||
         type == CypherType::NodeOrRelationship;
}

// How a call ended. `tooDeep` is apart, since it depends on the stack and not on the text alone.
enum class Ending { answered, forbidden, refused, tooDeep };

template <typename Answer>
struct Outcome {
  Ending ending = Ending::refused;
  Answer answer;
  std::string message;
};

template <typename Answer, typename Call>
Outcome<Answer> outcomeOf(const Call& call) {
  try {
    return {Ending::answered, call(), {}};
  } catch (const std::length_error& error) {
    return {Ending::tooDeep, {}, error.what()};
  } catch (const std::logic_error& error) {
    return {typeid(error) == typeid(std::logic_error) ? Ending::forbidden : Ending::refused,
            {},
            error.what()};
  } catch (const std::exception& error) {
    return {Ending::refused, {}, error.what()};
  }
}

Outcome<Usages> usagesOf(const WideString& expression) {
  return outcomeOf<Usages>(
      [&] { return vorn::GetVariableUsagesInPropertyFilterOCExpression(expression); });
}

Outcome<WideString> renamed(const WideString& expression, const Renames& renames) {
  return outcomeOf<WideString>(
      [&] { return vorn::ReplaceVariableNamesInPropertyFilterOCExpression(expression, renames); });
}

bool sameUsages(const Usages& left, const Usages& right) {
  return std::equal(
      left.begin(), left.end(), right.begin(), right.end(), [](const auto& one, const auto& other) {
        return one.first == other.first && one.second.writtenForms == other.second.writtenForms &&
               one.second.accesses == other.second.accesses;
      });
}

// Requires that the filter's text holds the name in one of its forms.
void requireName(const WideString& name, const WideString& text) {
  require(isQuotedName(name), "a reported name is back-quoted");
  require(holds(text, name) || holds(text, name.substr(1, name.size() - 2)),
          "a reported name stands in the text");
}

void requireUsagesStandIn(const Usages& usages, const WideString& text) {
  for (const auto& [name, usage] : usages) {
    require(isQuotedName(name), "a variable's name is back-quoted");
    require(!usage.writtenForms.empty(), "a variable is written somehow");
    require(!usage.accesses.empty(), "a variable is used somehow");
    for (const WideString& form : usage.writtenForms) {
      require(quoted(form) == name, "a written form means the variable");
      require(holds(text, form), "a written form stands in the text");
    }
    for (const vorn::VariableAccess& access : usage.accesses) {
      for (const WideString& key : access.propertyPath) {
        requireName(key, text);
      }
      for (const WideString& label : access.labels) {
        requireName(label, text);
      }
    }
  }
}

// The usages after a renaming in which all new names are well formed.
Usages expectedAfter(const Usages& before, const Renames& quotedRenames) {
  Usages after;
  for (const auto& [name, usage] : before) {
    const auto found = quotedRenames.find(name);
    const bool stays = found == quotedRenames.end();
    vorn::VariableUsage& there = after[stays ? name : found->second];
    there.accesses.insert(usage.accesses.begin(), usage.accesses.end());
    if (stays) {
      there.writtenForms.insert(usage.writtenForms.begin(), usage.writtenForms.end());
    } else {
      there.writtenForms.insert(found->second);
    }
  }
  return after;
}

// The renames that take effect: of two old names for one variable the later one wins.
Renames quotedRenamesOf(const Renames& renames) {
  Renames result;
  for (const auto& [oldName, newName] : renames) {
    result.insert_or_assign(quoted(oldName), quoted(newName));
  }
  return result;
}

bool areWellFormed(const Renames& renames) {
  return std::all_of(renames.begin(), renames.end(), [](const auto& entry) {
    return isWellFormed(entry.first) && isWellFormed(entry.second);
  });
}

// A back-quoted name that does not stand in the text.
WideString nameAbsentFrom(const WideString& text) {
  WideString name = wide("`absent`");
  while (holds(text, name)) {
    name.insert(name.size() - 1, wide("_"));
  }
  return name;
}

// Renames every variable of `usages` to a name that is not in `text`.
Renames renamesAway(const Usages& usages, const WideString& text) {
  WideString all = text;
  Renames renames;
  for (const auto& entry : usages) {
    const WideString name = nameAbsentFrom(all);
    all += name;
    renames.emplace(entry.first, name);
  }
  return renames;
}

Renames reversed(const Renames& renames) {
  Renames result;
  for (const auto& [oldName, newName] : renames) {
    result.emplace(newName, oldName);
  }
  return result;
}

void requireUsages(const WideString& text, const Usages& expected, const char* property) {
  const Outcome<Usages> usages = usagesOf(text);
  require(usages.ending == Ending::tooDeep ||
              (usages.ending == Ending::answered && sameUsages(usages.answer, expected)),
          property);
}

// Renames all variables and renames them back: only the written forms may change.
void checkRenamingThereAndBack(const WideString& text, const Usages& usages) {
  const Renames there = renamesAway(usages, text);
  const Outcome<WideString> away = renamed(text, there);
  require(away.ending != Ending::refused, "what is reported as used can be renamed");
  if (away.ending != Ending::answered) {
    return;
  }
  const Usages usagesAway = expectedAfter(usages, there);
  requireUsages(away.answer, usagesAway, "what is renamed is reported under its new name");
  const Renames back = reversed(there);
  const Outcome<WideString> again = renamed(away.answer, back);
  if (again.ending == Ending::answered) {
    requireUsages(again.answer, expectedAfter(usagesAway, back),
                  "renaming there and back changes written forms only");
  }
}

// The part of the text that both functions take for the expression, or how they refuse it.
Outcome<WideString> takenIn(const WideString& expression) {
  Outcome<WideString> taken = renamed(expression, {});
  require(taken.ending != Ending::forbidden, "renaming forbids no element");
  if (taken.ending == Ending::answered) {
    require(isWellFormed(expression), "text that is not well formed is refused");
    require(startsWith(withoutByteOrderMark(expression), taken.answer),
            "without renames the text comes back up to where the expression ends");
  }
  return taken;
}

}  // namespace

void require(bool holds, const char* property) {
  if (!holds) {
    std::cerr << "\nDoes not hold: " << property << ".\n";
    std::abort();
  }
}

void checkColumns(const WideString& query) {
  const Columns before = {{wide("before"), CypherType::Path}, {wide(""), CypherType::Node}};
  Columns columns = before;
  const auto* const place = columns.data();
  const std::int32_t status = vorn::GetOutputNamesAndTypes(query, columns);
  require(status == 0 || status == 1, "the status is 0 or 1");
  if (status == 1) {
    require(columns == before && columns.data() == place, "a failure leaves the vector untouched");
  } else {
    require(isWellFormed(query), "text that is not well formed is refused");
    const WideString text = withoutBackQuotes(query);
    for (const auto& [name, type] : columns) {
      require(isProduced(type), "a kind is one of those that are produced");
      require(holds(text, withoutBackQuotes(name)), "a column's name stands in the text");
    }
  }
  Columns again;
  require(vorn::GetOutputNamesAndTypes(query + lineFeed, again) == status,
          "white space behind a query changes nothing");
  require(again == (status == 0 ? columns : Columns()), "white space behind it changes no column");
}

void checkUsages(const WideString& expression) {
  const Outcome<Usages> usages = usagesOf(expression);
  const Outcome<WideString> taken = takenIn(expression);
  if (usages.ending == Ending::tooDeep || taken.ending == Ending::tooDeep) {
    return;
  }
  require((usages.ending == Ending::refused) == (taken.ending == Ending::refused),
          "usages and renaming agree whether it is an expression");
  require(usages.ending != Ending::refused || usages.message == taken.message,
          "usages and renaming fail alike");
  if (usages.ending != Ending::answered) {
    return;
  }
  requireUsagesStandIn(usages.answer, taken.answer);
  requireUsages(taken.answer, usages.answer, "text behind the expression changes no usage");
  checkRenamingThereAndBack(taken.answer, usages.answer);
}

void checkRenaming(const WideString& expression, const Renames& renames) {
  const Outcome<WideString> taken = takenIn(expression);
  const Outcome<WideString> result = renamed(expression, renames);
  if (taken.ending == Ending::tooDeep || result.ending == Ending::tooDeep) {
    return;
  }
  if (taken.ending == Ending::refused) {
    require(result.ending == Ending::refused && result.message == taken.message,
            "what is no expression is none with renames either");
    return;
  }
  require((result.ending == Ending::answered) == areWellFormed(renames),
          "an expression is renamed unless a name is not well formed");
  const Outcome<Usages> before = usagesOf(expression);
  if (result.ending != Ending::answered || before.ending != Ending::answered) {
    return;
  }
  const Renames counted = quotedRenamesOf(renames);
  std::vector<WideString> unchecked;
  bool touched = false;
  for (const auto& [name, usage] : before.answer) {
    const auto found = counted.find(name);
    touched = touched || found != counted.end();
    if (found != counted.end()) {
      require(holds(result.answer, found->second), "a new name stands in the result");
      if (!isQuotedName(found->second)) {
        unchecked.push_back(found->second);
      }
    }
  }
  require(touched || result.answer == taken.answer, "names that do not occur change nothing");
  // The library does not check a new name with back quotes of its own, so it may be no name.
  if (unchecked.empty()) {
    requireUsages(result.answer, expectedAfter(before.answer, counted),
                  "a renaming changes the usages by the names only");
  }
}

void checkIsQuery(const WideString& query) {
  Columns columns;
  require(vorn::GetOutputNamesAndTypes(query, columns) == 0, "what the grammar gives is a query");
}

void checkIsExpression(const WideString& expression) {
  const Outcome<WideString> taken = takenIn(expression);
  require(taken.ending == Ending::answered && taken.answer == expression,
          "what the grammar gives is one expression from end to end");
}
