#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace compare {

/// What a text is parsed as.
enum class Entry { Query, Filter };

struct Token {
  std::uint32_t type;
  std::uint32_t start;  // the byte of the text at which it begins, a byte order mark counted

  friend bool operator==(const Token& left, const Token& right) {
    return left.type == right.type && left.start == right.start;
  }
};

/// A node of the flat tree. The nodes stand in text order, an outer one before those inside it.
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

/// What a parser makes of a text.
struct Parse {
  bool lexed = false;         // the lexer gets to the end
  std::vector<Token> tokens;  // if it does: all but the end of the text
  bool accepted = false;      // the tree holds every token, but for white space behind a filter
  std::vector<Node> nodes;    // if it does
};

/// The parser under test. The text is well-formed UTF-8.
Parse parseCompiled(std::string_view utf8, Entry entry);

}  // namespace compare
