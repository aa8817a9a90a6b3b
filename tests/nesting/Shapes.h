#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "Repeated.h"
#include "support/Text.h"
#include "vorn/vorn.h"

/// A way to nest: `open` and `close` around `core`, again and again, between `before` and `after`.
struct Shape {
  const char* name;
  const char* open;
  const char* close;
  const char* core;
  const char* before = "";
  const char* after = "";

  [[nodiscard]] vorn::WideString nested(std::size_t levels) const {
    return wide(before + repeated(open, levels) + core + repeated(close, levels) + after);
  }

  [[nodiscard]] vorn::WideString unbalanced(std::size_t levels) const {
    return Shape{name, open, "", "", before}.nested(levels);
  }

  friend std::ostream& operator<<(std::ostream& out, const Shape& shape) {
    return out << shape.name;
  }
};

/// The one in which most rules lie between a bracket and the next. At 2,000 levels it takes half a
/// minute.
constexpr Shape mostRules{
    "MostRules", "EXISTS { RETURN 1 UNION MERGE (a) ON CREATE SET a.b = a = a IN ", "}", "a"};

constexpr Shape relationshipProperties{"RelationshipProperties", "()-[a {b: ", "}]-()", "1"};

/// The parser knows from a token or two which of these begins.
inline std::vector<Shape> plainShapes() {
  return {
      {"Parentheses", "(", ")", "a"},
      {"Lists", "[", "]", "a"},
      {"Maps", "{a: ", "}", "a"},
      {"Calls", "f(", ")", "a"},
      {"CaseConditions", "CASE WHEN ", " THEN 1 END", "a"},
      {"CaseSubjects", "CASE ", " WHEN 1 THEN 1 END", "a"},
      {"CaseDefaults", "CASE WHEN 1 THEN 1 ELSE ", " END", "a"},
      {"Negations", "-(", ")", "a"},
      {"Nots", "NOT (", ")", "a"},
      {"Subqueries", "EXISTS { (a) WHERE ", "}", "a"},
      {"NodeProperties", "(a {b: ", "})--()", "1"},
      {"PatternComprehensions", "[(a)--(b) | ", "]", "a"},
      {"ComprehensionResults", "[x IN a | ", "]", "a"},
      {"ComprehensionConditions", "[x IN a WHERE ", "]", "a"},
      {"QuantifierConditions", "any(x IN a WHERE ", ")", "a"},
      {"ParenthesesAroundAPattern", "(", ")", "(a)-[b]-(a)"},
      {"ParenthesesAroundAComprehension", "(", ")", "[x IN a]"},
  };
}

/// Here it has to look ahead over all that is nested inside, which takes time that grows faster
/// than the text.
inline std::vector<Shape> lookaheadShapes() {
  return {
      {"Subscripts", "a[", "]", "1"},
      {"Comprehensions", "[x IN ", "]", "a"},
      {"Quantifiers", "any(x IN ", ")", "a"},
      {"ComprehensionsOfCalls", "[x IN f(", ")]", "a"},
      {"ComprehensionOfParentheses", "(", ")", "a", "[x IN ", "]"},
      relationshipProperties,
      {"Queries", "EXISTS { MATCH (a) WHERE ", " RETURN 1}", "a"},
      {"QueriesAroundAComprehension", "EXISTS { MATCH (a) WHERE ", " RETURN 1}", "[x IN a]"},
      {"Returns", "EXISTS { RETURN ", "}", "[x IN a]"},
      {"Unions", "EXISTS { RETURN 1 UNION RETURN ", "}", "a"},
      mostRules,
      {"Merges", "EXISTS { MERGE (a) ON CREATE SET a.b = ", " RETURN 1}", "[x IN a]"},
  };
}

inline std::vector<Shape> allShapes() {
  std::vector<Shape> shapes = plainShapes();
  for (const Shape& shape : lookaheadShapes()) {
    shapes.push_back(shape);
  }
  return shapes;
}
