#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

/// A text derived from the grammar, and how.
///
/// The choices are bytes: the first one says whether a query or an expression is derived, and each
/// place of the grammar that leaves a choice takes one or more. When they run out, or the rules
/// nest too deeply, the shortest way out is taken. Whatever the bytes are, there is a derivation.
///
/// The choices of a rule stand side by side, so replacing that span by another one of the same rule
/// replaces that part of the text only.
struct Derivation {
  struct Token {
    std::size_t type;
    std::string text;  // UTF-8
  };

  /// The choices from `begin` to `end` made what one rule stands for.
  struct Span {
    std::uint32_t rule;
    std::size_t begin;
    std::size_t end;
  };

  bool isQuery;
  std::vector<Token> tokens;
  std::vector<Span> spans;
  /// How many choices were needed. What is left of the bytes may serve another purpose.
  std::size_t used;
};

Derivation derive(const std::uint8_t* choices, std::size_t size);
