// The lexer follows an automaton that is compiled from the lexer rules of the grammar. From the
// start of a token it goes on as long as some token may still match, and takes the last place where
// one did: the longest match, and of equally long ones that of the first rule.
//
// Where a token ends long before the place that the automaton came to, as in a comment without an
// end, the next token might look through the same text again. So the way of such a failure is
// remembered: in the same state at the same place another token fails as well. That keeps the time
// linear.

#include "parser/CompiledLexer.h"

#include <algorithm>
#include <limits>
#include <stdexcept>

#include "LexerTables.h"

namespace vorn {

namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

/// A code point's class, and how many bytes it takes.
struct Character {
  std::uint8_t itsClass;
  std::uint8_t size;
};

class Lexer {
 public:
  explicit Lexer(SyntaxTree& tree)
      : tree_(tree), text_(reinterpret_cast<const unsigned char*>(tree.text.data())) {}

  void run() {
    const std::size_t size = tree_.text.size();
    if (size >= std::numeric_limits<std::uint32_t>::max()) {
      throw std::length_error("the openCypher text is too long");
    }
    // Tokens of three bytes are usual, shorter ones are not rare.
    constexpr std::size_t most = std::size_t{1} << 20U;
    const std::size_t expected = std::min(size / 2, most) + 2 * SyntaxTree::longestLookahead;
    tree_.types.reserve(expected);
    tree_.starts.reserve(expected);
    std::size_t at =
        tree_.text.substr(0, byteOrderMark.size()) == byteOrderMark ? byteOrderMark.size() : 0;
    while (at < size) {
      const Token token = tokenAt(at);
      if (token.type == 0) {
        break;
      }
      tree_.types.push_back(token.type);
      tree_.starts.push_back(static_cast<std::uint32_t>(at));
      at = token.end;
    }
    tree_.isWhole = at == size;
    tree_.starts.push_back(static_cast<std::uint32_t>(at));
    tree_.types.insert(tree_.types.end(), SyntaxTree::longestLookahead + 1, SyntaxTree::endOfText);
  }

 private:
  struct Token {
    std::uint8_t type;  // 0 if there is none
    std::size_t end;
  };

  [[nodiscard]] Character characterAt(std::size_t at) const {
    const unsigned lead = text_[at];
    if (lead < 0x80) {
      return {LexerTables::pages[0][lead], 1};
    }
    const auto bits = [&](std::size_t offset) { return text_[at + offset] & 0x3FU; };
    if (lead < 0xE0) {
      return {classOf((lead & 0x1FU) << 6U | bits(1)), 2};
    }
    if (lead < 0xF0) {
      return {classOf((lead & 0x0FU) << 12U | bits(1) << 6U | bits(2)), 3};
    }
    return {classOf((lead & 0x07U) << 18U | bits(1) << 12U | bits(2) << 6U | bits(3)), 4};
  }

  static std::uint8_t classOf(unsigned codePoint) {
    return LexerTables::pages[LexerTables::pageOf[codePoint >> 8U]][codePoint & 0xFFU];
  }

  Token tokenAt(std::size_t start) {
    const std::size_t size = tree_.text.size();
    Token token{0, start};
    std::uint16_t acceptedState = LexerTables::start;
    std::uint16_t state = LexerTables::start;
    std::size_t at = start;
    while (at < size) {
      const Character character = characterAt(at);
      const std::uint16_t next = LexerTables::transitions[state + character.itsClass];
      if (next == LexerTables::dead) {
        break;
      }
      state = next;
      at += character.size;
      if (const std::uint8_t type = LexerTables::typeOf(state); type != 0) {
        token = {type, at};
        acceptedState = state;
      } else if (hasFailed(state, at)) {
        break;
      }
    }
    if (at == size) {
      if (const std::uint8_t type = LexerTables::typeAtEnd(state); type != 0) {
        return {type, at};
      }
    }
    constexpr std::size_t longWay = 64;
    if (token.type != 0 && at - token.end > longWay) {
      rememberFailure(acceptedState, token.end, at);
    }
    return token;
  }

  [[nodiscard]] bool hasFailed(std::uint16_t state, std::size_t at) const {
    return !failures_.empty() && failures_[at] == state;
  }

  void rememberFailure(std::uint16_t state, std::size_t from, std::size_t to) {
    failures_.resize(tree_.text.size() + 1);
    for (std::size_t at = from; at < to;) {
      const Character character = characterAt(at);
      state = LexerTables::transitions[state + character.itsClass];
      at += character.size;
      failures_[at] = state;
    }
  }

  SyntaxTree& tree_;
  const unsigned char* text_;
  std::vector<std::uint16_t> failures_;  // by place: the state that led to no token there, or 0
};

}  // namespace

void tokenise(SyntaxTree& tree) { Lexer(tree).run(); }

}  // namespace vorn
