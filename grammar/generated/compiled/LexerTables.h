// Written by grammar/compile_grammar.py from grammar/Cypher.g4; not to be edited.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace vorn {

/// The automaton of the lexer. A state is the place of its row in `transitions`, which has a column
/// for each class of characters. No character is of class 0: there stands the type of the token that
/// ends in the state, or 0.
struct LexerTables {
  static constexpr std::size_t classes = 102;
  static constexpr std::uint16_t dead = 0;
  static constexpr std::uint16_t start = classes;

  static const std::array<std::uint16_t, 34476> transitions;
  /// By state, divided by `classes`: the type of the token that ends there where the text ends.
  static const std::array<std::uint8_t, 338> typesAtEnd;
  /// By code point, divided by 256: the page of its class.
  static const std::array<std::uint8_t, 4352> pageOf;
  static const std::array<std::array<std::uint8_t, 256>, 128> pages;

  static std::uint8_t classOf(std::uint32_t codePoint) {
    return pages[pageOf[codePoint / 256]][codePoint % 256];
  }
  /// The type of the token that ends in a state, or 0.
  static std::uint8_t typeOf(std::uint16_t state) {
    return static_cast<std::uint8_t>(transitions[state]);
  }
  static std::uint8_t typeAtEnd(std::uint16_t state) { return typesAtEnd[state / classes]; }
};

}  // namespace vorn
