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

/// The shape with the most rules between a bracket and the next.
constexpr Shape mostRules{
    "MostRules", "EXISTS { RETURN 1 UNION MERGE (a) ON CREATE SET a.b = a = a IN ", "}", "a"};

constexpr Shape relationshipProperties{"RelationshipProperties", "()-[a {b: ", "}]-()", "1"};

constexpr Shape subscriptsOfCalls{"SubscriptsOfCalls", "a[f(", ")]", "1"};

/// Shapes that the parser recognises by up to three tokens.
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

/// Shapes whose alternative the parser knows only behind everything that is nested inside.
inline std::vector<Shape> lookaheadShapes() {
  return {
      {"Subscripts", "a[", "]", "1"},
      {"Comprehensions", "[x IN ", "]", "a"},
      {"Quantifiers", "any(x IN ", ")", "a"},
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

/// Shapes that open two brackets at a time.
inline std::vector<Shape> twoBracketShapes() {
  return {
      subscriptsOfCalls,
      {"ComprehensionsOfCalls", "[x IN f(", ")]", "a"},
      {"ListsOfLists", "[[", "]]", "a"},
      {"ParenthesesInLists", "[(", ")]", "a"},
      {"QuantifiersInComprehensions", "[x IN any(y IN ", ") | x]", "a"},
      {"MapsInNodeProperties", "(a {b: {c: ", "}})--()", "1"},
      {"ComprehensionsInSubqueries", "EXISTS { RETURN [(a)--(b) | ", "]}", "a"},
      {"CasesInCalls", "f(CASE WHEN ", " THEN 1 END)", "a"},
  };
}

inline std::vector<Shape> oneBracketShapes() {
  std::vector<Shape> shapes = plainShapes();
  const std::vector<Shape> more = lookaheadShapes();
  shapes.insert(shapes.end(), more.begin(), more.end());
  return shapes;
}

inline std::vector<Shape> allShapes() {
  std::vector<Shape> shapes = oneBracketShapes();
  const std::vector<Shape> more = twoBracketShapes();
  shapes.insert(shapes.end(), more.begin(), more.end());
  return shapes;
}
