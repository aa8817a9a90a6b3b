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

class Lexer {
 public:
  explicit Lexer(SyntaxTree& tree)
      : tree_(tree),
        text_(reinterpret_cast<const unsigned char*>(tree.text.data())),
        size_(tree.text.size()) {}

  void run() {
    if (size_ >= std::numeric_limits<std::uint32_t>::max()) {
      throw std::length_error("the openCypher text is too long");
    }
    std::size_t count = 0;
    std::size_t at =
        tree_.text.substr(0, byteOrderMark.size()) == byteOrderMark ? byteOrderMark.size() : 0;
    makeRoom(std::min(size_ / 2, mostAtOnce));
    while (at < size_) {
      const Token token = tokenAt(at);
      if (token.type == 0) {
        break;
      }
      if (count == tree_.starts.size() - 1) {
        makeRoom(2 * count);
      }
      tree_.types[count] = token.type;
      tree_.starts[count] = static_cast<std::uint32_t>(at);
      ++count;
      at = token.end;
    }
    tree_.isWhole = at == size_;
    tree_.starts[count] = static_cast<std::uint32_t>(at);
    tree_.starts.resize(count + 1);
    tree_.types.resize(count);
    tree_.types.resize(count + SyntaxTree::longestLookahead + 1, SyntaxTree::endOfText);
  }

 private:
  struct Token {
    std::uint8_t type;  // 0 if there is none
    std::size_t end;
  };

  // Tokens of three bytes are usual, shorter ones are not rare, and some texts are one long token.
  static constexpr std::size_t mostAtOnce = std::size_t{1} << 20U;

  void makeRoom(std::size_t tokens) {
    constexpr std::size_t more = SyntaxTree::longestLookahead + 1;
    tree_.types.resize(tokens + more);
    tree_.starts.resize(tokens + more);
  }

  // The class of the character there, and moves on behind it.
  std::uint8_t takeCharacter(std::size_t& at) const {
    const unsigned lead = text_[at++];
    return lead < 0x80 ? LexerTables::pages[0][lead] : classBeyondAscii(lead, at);
  }

  std::uint8_t classBeyondAscii(unsigned lead, std::size_t& at) const {
    const int following = lead < 0xE0 ? 1 : lead < 0xF0 ? 2 : 3;
    unsigned codePoint = lead & (0x3FU >> static_cast<unsigned>(following));
    for (int i = 0; i < following; ++i) {
      codePoint = codePoint << 6U | (text_[at++] & 0x3FU);
    }
    return LexerTables::classOf(codePoint);
  }

  Token tokenAt(std::size_t start) {
    Token token{0, start};
    std::uint16_t acceptedState = LexerTables::start;
    std::uint16_t state = LexerTables::start;
    std::size_t at = start;
    for (std::size_t next = at; next < size_; at = next) {
      const std::uint16_t target = LexerTables::transitions[state + takeCharacter(next)];
      if (target == LexerTables::dead) {
        break;
      }
      state = target;
      if (const std::uint8_t type = LexerTables::typeOf(state); type != 0) {
        token = {type, next};
        acceptedState = state;
      } else if (hasFailed(state, next)) {
        break;
      }
    }
    if (at == size_) {
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
    failures_.resize(size_ + 1);
    for (std::size_t at = from; at < to;) {
      state = LexerTables::transitions[state + takeCharacter(at)];
      failures_[at] = state;
    }
  }

  SyntaxTree& tree_;
  const unsigned char* text_;
  std::size_t size_;
  std::vector<std::uint16_t> failures_;  // by place: the state that led to no token there, or 0
};

}  // namespace

void tokenise(SyntaxTree& tree) { Lexer(tree).run(); }

}  // namespace vorn
