#include "RandomTexts.h"

#include "support/Text.h"

namespace {

using namespace std::string_view_literals;

constexpr int queryDepth = 3;
constexpr int filterDepth = 4;

std::string joined(std::string_view one, std::string_view two, std::string_view three) {
  std::string all(one);
  all += two;
  all += three;
  return all;
}

}  // namespace

// The distributions of the standard library differ between its implementations.
std::size_t RandomTexts::below(std::size_t bound) { return engine() % bound; }

std::string RandomTexts::query() {
  std::string text = singleQuery(queryDepth);
  while (oneIn(4)) {
    text += joined(oneIn(2) ? " UNION ALL " : " UNION ", singleQuery(queryDepth), "");
  }
  return text;
}

std::string RandomTexts::filter() { return expression(filterDepth); }

std::string RandomTexts::damaged(std::string text) {
  constexpr std::array strange = {"\0"sv, "'"sv,    "`"sv, R"(\)"sv, "/*"sv,         "#"sv,
                                  "("sv,  "]"sv,    "}"sv, "é"sv,    "\U0001F600"sv, "//"sv,
                                  "-"sv,  " AND"sv, "$"sv, ";"sv};
  const std::size_t place = below(text.size() + 1);
  const std::size_t length = below(8);
  switch (below(3)) {
    case 0:
      text.erase(place, length);
      break;
    case 1:
      text.insert(place, text.substr(place, length));
      break;
    default:
      text.insert(place, oneOf(strange));
  }
  return text;
}

std::string RandomTexts::singleQuery(int depth) {
  std::string text;
  while (!oneIn(3)) {
    text += readingClause(depth) + " ";
    if (oneIn(4)) {
      text += "WITH" + projection(depth) + (oneIn(3) ? " WHERE " + expression(depth) : "") + " ";
    }
  }
  return text + "RETURN" + projection(depth);
}

std::string RandomTexts::readingClause(int depth) {
  switch (below(4)) {
    case 0:
      return "UNWIND " + expression(depth) + " AS " + name();
    case 1:
      return "CALL a.b(" + expression(depth) + ") YIELD " + name();
    default:
      return (oneIn(3) ? "OPTIONAL MATCH " : "MATCH ") + pattern(depth) +
             (oneIn(2) ? " WHERE " + expression(depth) : "");
  }
}

std::string RandomTexts::projection(int depth) {
  std::string text = oneIn(5) ? " DISTINCT " : " ";
  text += oneIn(6) ? "*" : expression(depth);
  while (oneIn(2)) {
    text += gap() + "," + gap() + expression(depth) + (oneIn(2) ? " AS " + name() : "");
  }
  if (oneIn(5)) {
    text += " ORDER BY " + expression(depth) + (oneIn(2) ? " DESC" : "");
  }
  if (oneIn(5)) {
    text += oneIn(2) ? " SKIP 1" : " LIMIT 10";
  }
  return text;
}

std::string RandomTexts::pattern(int depth) {
  std::string text = oneIn(4) ? name() + " = " : "";
  text += node(depth);
  while (oneIn(2)) {
    text += relationship() + node(depth);
  }
  return text;
}

std::string RandomTexts::node(int depth) {
  std::string text = "(" + gap() + (oneIn(4) ? "" : name());
  while (oneIn(3)) {
    text += ":" + name();
  }
  if (depth > 0 && oneIn(6)) {
    text += " {" + name() + ": " + expression(depth - 1) + "}";
  }
  return text + ")";
}

std::string RandomTexts::relationship() {
  constexpr std::array details = {""sv, "[]"sv, "[r]"sv, "[:K|:L]"sv, "[r:K*1..3]"sv, "[*]"sv};
  constexpr std::array left = {"-"sv, "<-"sv, " - "sv};
  constexpr std::array right = {"-"sv, "->"sv, " - "sv};
  return joined(oneOf(left), oneOf(details), oneOf(right));
}

std::string RandomTexts::expression(int depth) {
  std::string text = atom(depth);
  while (depth > 0 && oneIn(3)) {
    text += operation(depth);
  }
  return text;
}

std::string RandomTexts::operation(int depth) {
  constexpr std::array operators = {
      "="sv,    "<>"sv, "<"sv, ">="sv,    "+"sv,    "-"sv,    "*"sv,
      "/"sv,    "%"sv,  "^"sv, " AND "sv, " OR "sv, " IN "sv, " STARTS WITH "sv,
      " XOR "sv};
  switch (below(6)) {
    case 0:
      return oneIn(2) ? " IS NULL" : " IS NOT NULL";
    case 1:
      return "[" + expression(depth - 1) + "]";
    default:
      return gap() + std::string(oneOf(operators)) + gap() + atom(depth - 1);
  }
}

std::string RandomTexts::atom(int depth) {
  constexpr std::array literals = {"1"sv,    "0x1F"sv, "1.5e3"sv,    "'text'"sv, R"("a\n")"sv,
                                   "TRUE"sv, "NULL"sv, "count(*)"sv, "$p"sv,     "[]"sv};
  if (depth > 0 && oneIn(3)) {
    return nested(depth - 1);
  }
  if (oneIn(3)) {
    return std::string(oneOf(literals));
  }
  std::string text = name();
  while (oneIn(3)) {
    text += "." + name();
  }
  return oneIn(6) ? text + ":" + name() : text;
}

std::string RandomTexts::nested(int depth) {
  switch (below(11)) {
    case 0:
      return "[" + expression(depth) + ", " + expression(depth) + "]";
    case 1:
      return "{" + name() + ": " + expression(depth) + "}";
    case 2:
      return "CASE WHEN " + expression(depth) + " THEN " + expression(depth) + " ELSE 1 END";
    case 3:
      return "[x IN " + expression(depth) + " WHERE " + expression(depth) + " | x]";
    case 4:
      return "any(x IN " + expression(depth) + " WHERE " + expression(depth) + ")";
    case 5:
      return "[" + node(depth) + relationship() + node(depth) + " | " + expression(depth) + "]";
    case 6:
      return "EXISTS { MATCH " + pattern(depth) + " RETURN " + expression(depth) + " }";
    case 7:
      return node(depth) + relationship() + node(depth);
    case 8:
      return "NOT " + expression(depth);
    case 9:
      return name() + "(" + expression(depth) + ", " + expression(depth) + ")";
    default:
      return "(" + gap() + expression(depth) + gap() + ")";
  }
}

std::string RandomTexts::name() {
  constexpr std::array names = {"n"sv, "m"sv, "r"sv, "Person"sv, "`a b`"sv, "größe"sv, "count"sv};
  return std::string(oneOf(names));
}

std::string RandomTexts::gap() {
  constexpr std::array gaps = {""sv, ""sv, ""sv, " "sv, "\n"sv, " /* gap */ "sv};
  return std::string(oneOf(gaps));
}

Question randomQuestion(RandomTexts& texts) {
  constexpr std::array kinds = {Question::Kind::columns, Question::Kind::usages,
                                Question::Kind::renaming};
  const Question::Kind kind = kinds.at(texts.below(kinds.size()));
  std::string text = kind == Question::Kind::columns ? texts.query() : texts.filter();
  if (texts.below(3) == 0) {
    text = wellFormed(texts.damaged(text));
  }
  return {kind, wide(text)};
}
