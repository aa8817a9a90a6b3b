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

// Counts the levels that are open behind each token. It may count too many, but not too few: behind
// a bracket that does not match, nobody reads on.
class Levels {
 public:
  void read(std::size_t type) {
    switch (type) {
      case openParenthesis:
      case openSquare:
        open(type, 1);
        break;
      case openBrace:
        // A subquery takes more rules from one bracket to the next.
        open(type, last_ == CypherLexer::EXISTS ? 2 : 1);
        break;
      case CypherLexer::CASE:
        if (last_ != dot) {
          open(type, 1);
        }
        break;
      case closeParenthesis:
      case closeSquare:
      case closeBrace:
        while (isCaseOpen()) {
          close();
        }
        close();
        break;
      case CypherLexer::END:
        if (isCaseOpen() && !isNameExpected()) {
          close();
        }
        break;
      case CypherLexer::SP:
        return;
      default:
        break;
    }
    last_ = type;
  }

  [[nodiscard]] std::size_t deepest() const { return deepest_; }

 private:
  struct Opening {
    std::size_t type;
    std::size_t levels;  // with all those around
  };

  [[nodiscard]] bool isCaseOpen() const {
    return !openings_.empty() && openings_.back().type == CypherLexer::CASE;
  }

  // Reserved words serve as names too. No expression ends in one of these.
  [[nodiscard]] bool isNameExpected() const {
    return last_ == dot || last_ == colon || last_ == comma || last_ == bar || last_ == openBrace;
  }

  void open(std::size_t type, std::size_t levels) {
    openings_.push_back({type, levels + (openings_.empty() ? 0 : openings_.back().levels)});
    deepest_ = std::max(deepest_, openings_.back().levels);
  }

  void close() {
    if (!openings_.empty()) {
      openings_.pop_back();
    }
  }

  std::vector<Opening> openings_;
  std::size_t last_ = 0;
  std::size_t deepest_ = 0;
};

}  // namespace

void refuseTooDeep(const std::uint8_t* tokenTypes, std::size_t count) {
  Levels levels;
  std::for_each_n(tokenTypes, count, [&](std::size_t type) { levels.read(type); });
  const std::uintptr_t position = stackPosition();
  if (position - stackEnd(position) < reserve + levels.deepest() * bytesOfLevel) {
    refuseAsTooDeep();
  }
}

}  // namespace vorn
