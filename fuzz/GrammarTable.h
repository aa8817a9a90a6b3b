#pragma once

#include <cstdint>

/// grammar/Cypher.g4 as a table that text can be derived from. write_grammar_table.py fills it.
enum class ElementKind : std::uint8_t {
  sequence,  ///< all of the links
  choice,    ///< one of the links
  optional,  ///< the link or nothing
  star,      ///< the link any number of times
  plus,      ///< the link once or more
  rule,      ///< the link, as a parser rule; `number` is its index
  token,     ///< the link, as one token; `number` is its type
  set,       ///< one character of the ranges
  text,      ///< the first character of each range, in order
};

struct Element {
  ElementKind kind;
  std::uint32_t first;   ///< of its links, or of its ranges
  std::uint32_t count;   ///< of its links, or of its ranges
  std::uint32_t number;  ///< of the rule or token
  /// How many rules the shortest derivation of this element nests.
  std::uint32_t height;
};

struct CharacterRange {
  char32_t first;
  char32_t last;
};

struct GrammarTable {
  const Element* elements;
  const std::uint32_t* links;
  const CharacterRange* ranges;
  /// The elements that stand for oC_Cypher and oC_Expression.
  std::uint32_t query;
  std::uint32_t expression;
};

extern const GrammarTable cypherGrammar;
