// Written by grammar/compile_grammar.py from grammar/Cypher.g4; not to be edited.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace vorn {

/// The automaton of the lexer over classes of characters.
struct LexerTables {
  static constexpr std::uint16_t dead = 0;
  static constexpr std::uint16_t start = 1;

  struct State {
    std::uint16_t place;  // where its transitions begin
    std::uint16_t like;   // the state that has those which it lacks
    std::uint8_t type;    // of the token that ends there, or 0
    std::uint8_t typeAtEnd;  // the same where the text ends
  };
  struct Transition {
    std::uint16_t state;  // whose it is; of the dead state there are none
    std::uint16_t target;
  };

  static const std::array<State, 338> states;
  static const std::array<Transition, 1422> transitions;

  struct Beginning {
    std::uint16_t state;
    std::uint8_t stops;  // the set of characters that lead nowhere from there
  };
  /// By character of ASCII.
  static const std::array<Beginning, 128> beginnings;
  /// Sets of characters of ASCII: bits of bytes, in words.
  static const std::array<std::array<std::uint64_t, 4>, 11> stopSets;

  /// By code point, divided by 256: the page of its class.
  static const std::array<std::uint8_t, 4352> pageOf;
  static const std::array<std::array<std::uint8_t, 256>, 128> pages;

  static std::uint8_t classOf(std::uint32_t codePoint) {
    return pages[pageOf[codePoint / 256]][codePoint % 256];
  }

  static std::uint8_t typeOf(std::uint16_t state) { return states[state].type; }
  static std::uint8_t typeAtEnd(std::uint16_t state) { return states[state].typeAtEnd; }

  static bool stops(const Beginning& beginning, unsigned char byte) {
    return (stopSets[beginning.stops][byte / 64U] >> (byte % 64U) & 1U) != 0;
  }

  static std::uint16_t next(std::uint16_t state, std::uint8_t characterClass) {
    const Transition& own = transitions[states[state].place + std::size_t{characterClass}];
    if (own.state == state) {
      return own.target;
    }
    const std::uint16_t like = states[state].like;
    const Transition& other = transitions[states[like].place + std::size_t{characterClass}];
    return other.state == like ? other.target : dead;
  }
};

}  // namespace vorn
