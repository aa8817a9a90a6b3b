#include "Comparison.h"

#include <algorithm>
#include <exception>
#include <sstream>
#include <stdexcept>
#include <typeinfo>

#include "Answers.h"
#include "Reference.h"
#include "support/Text.h"

namespace compare {

namespace {

using vorn::WideString;

const Renames& renames() {
  static const Renames some{{wide("n"), wide("m")},     {wide("m"), wide("n")},
                            {wide("a"), wide("b`c")},   {wide("`b`"), WideString()},
                            {wide("x"), wide("`x y`")}, {wide("any"), wide("映")},
                            {wide("COUNT"), wide("c")}};
  return some;
}

void print(std::ostream& out, const Parse& parse) {
  out << (parse.lexed ? "lexed" : "not lexed") << (parse.accepted ? ", accepted" : ", refused");
  out << "\n    tokens (type@byte):";
  for (const Token& token : parse.tokens) {
    out << ' ' << token.type << '@' << token.start;
  }
  out << "\n    nodes (rule first-last end):";
  for (const Node& node : parse.nodes) {
    out << "  " << node.rule << ' ' << node.first << '-' << node.last << ' ' << node.end;
  }
}

void print(std::ostream& out, const Columns& columns) {
  out << "status " << columns.status;
  for (const auto& [name, type] : columns.columns) {
    out << "  " << narrow(name) << ": " << static_cast<int>(type);
  }
}

const char* nameOf(Ending ending) {
  constexpr const char* names[] = {"answer", "forbidden", "error", "bound"};
  return names[static_cast<std::size_t>(ending)];
}

void print(std::ostream& out, const Usages& usages) {
  out << nameOf(usages.ending) << ' ' << usages.message;
  for (const auto& [name, usage] : usages.usages) {
    out << "\n    " << narrow(name) << " written";
    for (const WideString& form : usage.writtenForms) {
      out << ' ' << narrow(form);
    }
    for (const vorn::VariableAccess& access : usage.accesses) {
      out << "; path";
      for (const WideString& key : access.propertyPath) {
        out << ' ' << narrow(key);
      }
      out << " labels";
      for (const WideString& label : access.labels) {
        out << ' ' << narrow(label);
      }
    }
  }
}

void print(std::ostream& out, const Renamed& renamed) {
  out << nameOf(renamed.ending) << ' ' << renamed.message << ' ' << narrow(renamed.text);
}

bool same(const Parse& one, const Parse& other) {
  return one.lexed == other.lexed && one.accepted == other.accepted &&
         (!one.lexed || one.tokens == other.tokens) && (!one.accepted || one.nodes == other.nodes);
}

bool same(const Columns& one, const Columns& other) {
  return one.status == other.status && one.columns == other.columns;
}

bool same(const vorn::VariableUsage& one, const vorn::VariableUsage& other) {
  return one.writtenForms == other.writtenForms && one.accesses == other.accesses;
}

bool same(const Usages& one, const Usages& other) {
  return one.ending == other.ending && one.message == other.message &&
         std::equal(one.usages.begin(), one.usages.end(), other.usages.begin(), other.usages.end(),
                    [](const auto& left, const auto& right) {
                      return left.first == right.first && same(left.second, right.second);
                    });
}

bool same(const Renamed& one, const Renamed& other) {
  return one.ending == other.ending && one.message == other.message && one.text == other.text;
}

// Describes the answers of the two sides unless they are equal.
template <typename Answer>
std::string difference(const char* what, const Answer& expected, const Answer& found) {
  if (same(expected, found)) {
    return {};
  }
  std::ostringstream out;
  out << "  " << what << "\n  expected: ";
  print(out, expected);
  out << "\n  found:    ";
  print(out, found);
  out << '\n';
  return out.str();
}

Columns columnsOf(const WideString& query) {
  Columns answer;
  answer.status = vorn::GetOutputNamesAndTypes(query, answer.columns);
  return answer;
}

// Calls a function and stores how it ends.
template <typename Answer, typename Call>
Answer endingOf(Call call) {
  Answer answer;
  try {
    call(answer);
  } catch (const std::length_error&) {
    answer.ending = Ending::Bound;
  } catch (const std::exception& exception) {
    answer.ending =
        typeid(exception) == typeid(std::logic_error) ? Ending::Forbidden : Ending::Error;
    answer.message = exception.what();
  }
  return answer;
}

Usages usagesOf(const WideString& expression) {
  return endingOf<Usages>([&](Usages& answer) {
    answer.usages = vorn::GetVariableUsagesInPropertyFilterOCExpression(expression);
  });
}

Renamed renamedOf(const WideString& expression) {
  return endingOf<Renamed>([&](Renamed& answer) {
    answer.text = vorn::ReplaceVariableNamesInPropertyFilterOCExpression(expression, renames());
  });
}

void compareFilter(const Reference& reference, const WideString& text, Verdict& verdict) {
  const Usages usages = usagesOf(text);
  const Renamed renamed = renamedOf(text);
  verdict.refusedByBound = usages.ending == Ending::Bound || renamed.ending == Ending::Bound;
  if (usages.ending != Ending::Bound) {
    verdict.difference = difference("usages", reference.usages(), usages);
  }
  if (renamed.ending != Ending::Bound && verdict.difference.empty()) {
    verdict.difference = difference("renamed text", reference.renamed(renames()), renamed);
  }
  verdict.equalMessage = usages.ending == Ending::Error && verdict.difference.empty();
}

}  // namespace

Verdict compareText(std::string_view utf8, Entry entry) {
  Verdict verdict;
  const Reference reference(utf8, entry);
  verdict.accepted = reference.parse().accepted;
  verdict.mayContinue = reference.mayContinue();
  verdict.parse = reference.parse();
  verdict.difference = difference("parse", reference.parse(), parseCompiled(utf8, entry));
  if (!verdict.difference.empty()) {
    return verdict;
  }
  const WideString text = wide(utf8);
  if (entry == Entry::Query) {
    verdict.difference = difference("columns", reference.columns(), columnsOf(text));
  } else {
    compareFilter(reference, text, verdict);
  }
  return verdict;
}

bool isRefusedByAll(const WideString& illFormed) {
  Columns columns{0, {{wide("untouched"), vorn::CypherType::Path}}};
  const Columns before = columns;
  columns.status = vorn::GetOutputNamesAndTypes(illFormed, columns.columns);
  return columns.status == 1 && columns.columns == before.columns &&
         usagesOf(illFormed).ending == Ending::Error &&
         renamedOf(illFormed).ending == Ending::Error;
}

}  // namespace compare
