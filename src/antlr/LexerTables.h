#pragma once

#include <cstddef>
#include <cstdint>

namespace vorn {

/// The lexer rules as one automaton. Of two rules that match the same text the first one wins.
struct LexerTables {
  using State = std::uint16_t;
  static constexpr State start = 0;
  static constexpr State dead = UINT16_MAX;
  static constexpr char32_t endOfText = UINT32_MAX;  // a comment may end there

  static State nextState(State state, char32_t symbol);

  /// The type of the token that ends in this state; 0 if none does.
  static std::size_t tokenType(State state);
};

}  // namespace vorn
