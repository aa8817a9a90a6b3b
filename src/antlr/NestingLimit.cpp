#include "antlr/NestingLimit.h"

#include <algorithm>
#include <vector>

#include "CypherLexer.h"
#include "TooDeep.h"
#include "platform/StackBounds.h"

namespace vorn {

namespace {

// What a parse needs at any depth: prediction within one level, and throwing. Measured are 24 KiB.
constexpr std::size_t reserve = std::size_t{32} * 1024;

// The parser takes some 1,000 bytes, and the search for what may follow an error as much again and
// a half: 2,450 at most. Windows takes 1.6 times as much.
constexpr std::size_t bytesOfLevel = 3840;

// The grammar's symbols for brackets have no names of their own.
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

// Reserved words serve as names too. No expression ends in one of these, so behind them END is one.
bool isBeforeName(std::size_t type) {
  return type == dot || type == colon || type == comma || type == bar || type == openBrace;
}

// The levels that are open at the deepest place. It may count too many, but not too few: behind a
// bracket that does not match, nobody reads on.
std::size_t deepestLevel(const std::uint8_t* tokenTypes, std::size_t count) {
  struct Bracket {
    std::size_t around;  // levels
    std::size_t cases;   // that are open inside
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
      // A subquery takes more rules from one bracket to the next.
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
