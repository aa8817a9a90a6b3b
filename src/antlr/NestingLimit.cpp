#include "antlr/NestingLimit.h"

#include <algorithm>
#include <vector>

#include "CypherLexer.h"
#include "TooDeep.h"
#include "platform/StackBounds.h"

namespace vorn {

namespace {

// What a parse needs at any depth, to predict within one level and to throw. Measured: 24 KiB.
constexpr std::size_t reserve = std::size_t{32} * 1024;

// Measured for a level: 2,450 bytes at most, some 1,000 of them in the parser and the others in the
// search for the tokens that may follow an error. Windows takes 1.6 times as much.
constexpr std::size_t bytesOfLevel = 3840;

// The grammar writes these tokens as literals, so the lexer only numbers them.
enum Symbol : std::size_t {
  comma = CypherLexer::T__1,
  openParenthesis = CypherLexer::T__5,
  closeParenthesis = CypherLexer::T__6,
  openSquare = CypherLexer::T__7,
  closeSquare = CypherLexer::T__8,
  colon = CypherLexer::T__9,
  bar = CypherLexer::T__10,
  dot = CypherLexer::T__22,
  openBrace = CypherLexer::T__23,
  closeBrace = CypherLexer::T__24,
};

// Whether END is a name behind this token. Reserved words may be names, and no expression ends in
// one of these tokens.
bool isBeforeName(std::size_t type) {
  return type == dot || type == colon || type == comma || type == bar || type == openBrace;
}

// How many levels are open at the deepest place. The count may be too high but never too low: the
// parser does not read past a bracket that does not match.
std::size_t deepestLevel(const std::uint8_t* tokenTypes, std::size_t count) {
  struct Bracket {
    std::size_t around;  // levels that are open around it
    std::size_t cases;   // CASE expressions that are open directly inside it
  };
  std::vector<Bracket> brackets{{0, 0}};
  std::size_t open = 0;
  std::size_t deepest = 0;
  std::size_t last = CypherLexer::SP;
  std::for_each_n(tokenTypes, count, [&](std::size_t type) {
    if (type == CypherLexer::SP) {
      return;
    }
    if (type == openParenthesis || type == openSquare || type == openBrace) {
      brackets.push_back({open, 0});
      // A subquery takes more stack than a bracket, since the parser passes more rules.
      open += last == CypherLexer::EXISTS ? 2 : 1;
    } else if (type == closeParenthesis || type == closeSquare || type == closeBrace) {
      open = brackets.back().around;
      brackets.pop_back();
      if (brackets.empty()) {
        brackets.push_back({0, 0});
      }
    } else if (type == CypherLexer::CASE && last != dot) {
      ++open;
      ++brackets.back().cases;
    } else if (type == CypherLexer::END && brackets.back().cases > 0 && !isBeforeName(last)) {
      --open;
      --brackets.back().cases;
    }
    deepest = std::max(deepest, open);
    last = type;
  });
  return deepest;
}

}  // namespace

void refuseTooDeep(const std::uint8_t* tokenTypes, std::size_t count) {
  const std::uintptr_t position = stackPosition();
  if (position - stackEnd(position) < reserve + deepestLevel(tokenTypes, count) * bytesOfLevel) {
    refuseAsTooDeep();
  }
}

}  // namespace vorn
