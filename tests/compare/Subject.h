#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace compare {

/// What a text is parsed as.
enum class Entry { Query, Filter };

struct Token {
  std::uint32_t type;
  std::uint32_t start;  // byte offset in the text; a byte order mark counts

  friend bool operator==(const Token& left, const Token& right) {
    return left.type == right.type && left.start == right.start;
  }
};

/// A node of the flat tree. Nodes stand in the order of the text, outer nodes before inner ones.
struct Node {
  std::uint32_t rule;   // the index in the grammar, CypherParser::RuleOC_...
  std::uint32_t first;  // tokens
  std::uint32_t last;
  std::uint32_t end;  // the number of the node behind the last one inside it

  friend bool operator==(const Node& left, const Node& right) {
    return left.rule == right.rule && left.first == right.first && left.last == right.last &&
           left.end == right.end;
  }
};

/// The result of parsing a text.
struct Parse {
  bool lexed = false;         // the lexer has come to the end of the text
  std::vector<Token> tokens;  // if `lexed`: all tokens, without the end of the text
  bool accepted = false;      // the tree holds every token, except white space behind a filter
  std::vector<Node> nodes;    // if `accepted`
};

/// Parses with the parser under test. The text must be well-formed UTF-8.
Parse parseCompiled(std::string_view utf8, Entry entry);

}  // namespace compare
