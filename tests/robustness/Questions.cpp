#include "Questions.h"

#include <stdexcept>
#include <typeinfo>

#include "support/Text.h"

namespace {

std::string columnsAnswer(const Calls& calls, const vorn::WideString& text) {
  std::vector<std::pair<vorn::WideString, vorn::CypherType>> columns = {
      {u"from before the call", vorn::CypherType::Unknown}};
  std::string line = "status " + std::to_string(calls.columns(text, columns));
  for (const auto& [name, type] : columns) {
    line += ", " + narrow(name) + " " + std::to_string(static_cast<int>(type));
  }
  return line;
}

std::string usagesAnswer(const Calls& calls, const vorn::WideString& text) {
  std::string line;
  for (const auto& [name, usage] : calls.usages(text)) {
    line += narrow(name) + " written";
    for (const vorn::WideString& form : usage.writtenForms) {
      line += " " + narrow(form);
    }
    for (const vorn::VariableAccess& access : usage.accesses) {
      line += " reads";
      for (const vorn::WideString& key : access.propertyPath) {
        line += " ." + narrow(key);
      }
      for (const vorn::WideString& label : access.labels) {
        line += " :" + narrow(label);
      }
    }
    line += ", ";
  }
  return line;
}

}  // namespace

std::string answer(const Calls& calls, const Question& question) {
  try {
    switch (question.kind) {
      case Question::Kind::columns:
        return columnsAnswer(calls, question.text);
      case Question::Kind::usages:
        return usagesAnswer(calls, question.text);
      default:
        return narrow(calls.renaming(question.text, renames()));
    }
  } catch (const std::exception& exception) {
    const bool forbidden = typeid(exception) == typeid(std::logic_error);
    return (forbidden ? "forbidden: " : "failed: ") + std::string(exception.what());
  }
}

const std::vector<Question>& questions() {
  using Kind = Question::Kind;
  static const std::vector<Question> all = {
      {Kind::columns,
       u"MATCH p = (n:Person)-[r:KNOWS*1..2]->(m) WHERE n.age > 3 AND (n)-->(m) "
       u"WITH *, n AS x ORDER BY x UNWIND [1] AS u RETURN n, r, p, m.name AS friend, u "
       u"UNION MATCH ()-[n]-(x) RETURN n, x, n AS p, {a: [y IN x.l WHERE y = 'ü' | y.b]} AS z, 1"},
      {Kind::columns, u"RETURN 0x1F + 0o17 AS `größe`, count(*)"},
      {Kind::columns, u"CREATE (n) SET n.a = CASE WHEN n IS NULL THEN 1 ELSE -2.5e3 END"},
      {Kind::columns, u"MATCH (n RETURN n"},
      {Kind::columns, u"RETURN 'not closed"},
      {Kind::columns, u"RETURN (a)-[b]-(c)-[d]-(e)-\\"},
      {Kind::columns, u""},
      {Kind::usages, u"n.address.city = 'x' AND (`n`:Person OR m['key'] IN [1, 2]) AND n.a > $n"},
      {Kind::usages, u"size([x IN n.list | x]) > 0"},
      {Kind::usages, u"n.a = AND"},
      {Kind::usages, u"n.a\n= 'not closed"},
      {Kind::usages, u"[x IN (a)-[b]-(c) ?"},
      {Kind::renaming, u"n.n = $n AND any(x IN n.list WHERE x.a = `n`) /* n */ OR (n)-[m]->(o)"},
      {Kind::renaming, u"(n.a"},
      {Kind::renaming, vorn::WideString(u"n.a = ") + vorn::WideChar{0xD800}},
  };
  return all;
}

const std::unordered_map<vorn::WideString, vorn::WideString>& renames() {
  static const std::unordered_map<vorn::WideString, vorn::WideString> all = {
      {u"n", u"person"}, {u"`m`", u"a`b"}, {u"x", u"`é`"}};
  return all;
}
