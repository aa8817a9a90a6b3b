#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

/// A text derived from the grammar, and the choices that led to it.
///
/// The choices are bytes. The first one tells whether a query or an expression is derived. Each
/// place of the grammar with a choice takes one byte or more. If the bytes run out or the rules
/// nest too deeply, the derivation ends by the shortest way. So any bytes give a derivation.
///
/// The choices of a rule stand side by side. So replacing this span by another one of the same rule
/// changes only that part of the text.
struct Derivation {
  struct Token {
    std::size_t type;
    std::string text;  // UTF-8
  };

  /// The choices from `begin` to `end` derived the text of one rule.
  struct Span {
    std::uint32_t rule;
    std::size_t begin;
    std::size_t end;
  };

  bool isQuery;
  std::vector<Token> tokens;
  std::vector<Span> spans;
  /// How many bytes were needed. The others may serve another purpose.
  std::size_t used;
};

Derivation derive(const std::uint8_t* choices, std::size_t size);
