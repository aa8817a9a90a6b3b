// The lexer follows an automaton that is compiled from the lexer rules of the grammar. From the
// start of a token it reads as long as some token may still match. Then it takes the longest match,
// and of equally long matches that of the first rule.
//
// The automaton may read far past the token that it takes, as in a comment that is never closed.
// The next token could then read the same text again. So the lexer remembers the states and places
// that such a failure has passed: a later token fails there as well. That keeps the time linear.

#include "parser/CompiledLexer.h"

#include <algorithm>
#include <stdexcept>

#include "LexerTables.h"

namespace vorn {

namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

// NOLINTBEGIN(cppcoreguidelines-pro-bounds-*,cppcoreguidelines-pro-type-reinterpret-cast): it goes
// through bytes one by one.
class Lexer {
 public:
  explicit Lexer(SyntaxTree& tree)
      : tree_(tree),
        begin_(reinterpret_cast<const unsigned char*>(tree.text.data())),
        end_(begin_ + tree.text.size()) {}

  void run() {
    const std::size_t size = tree_.text.size();
    // Nodes have 32-bit numbers, and a text may have two of them for each byte.
    constexpr std::size_t longest = std::size_t{1} << 30U;
    if (size > longest) {
      throw std::length_error("the openCypher text is too long");
    }
    const bool isMarked = tree_.text.substr(0, byteOrderMark.size()) == byteOrderMark;
    const unsigned char* at = begin_ + (isMarked ? byteOrderMark.size() : 0);
    makeRoom(std::min(size / 2, mostAtOnce));
    std::size_t count = 0;
    while (at != end_) {
      const std::uint8_t single = singleCharacterAt(at);
      const Token token = single == 0 ? tokenAt(at) : Token{single, at + 1};
      if (token.type == 0) {
        break;
      }
      if (count == room_) {
        makeRoom(2 * count);
      }
      tree_.types[count] = token.type;
      tree_.starts[count] = placeOf(at);
      ++count;
      at = token.end;
    }
    tree_.isWhole = at == end_;
    tree_.starts[count] = placeOf(at);
    tree_.starts.resize(count + 1);
    tree_.types.resize(count + endsOfText);
    std::fill(tree_.types.begin() + static_cast<std::ptrdiff_t>(count), tree_.types.end(),
              SyntaxTree::endOfText);
  }

 private:
  struct Token {
    std::uint8_t type;  // 0 if no token matches
    const unsigned char* end;
  };

  // The first block has room for a token of every two bytes, since most tokens are longer. For a
  // long text it is smaller, since the text may be a single token.
  static constexpr std::size_t mostAtOnce = std::size_t{1} << 20U;
  static constexpr std::size_t endsOfText = SyntaxTree::longestLookahead + 1;

  void makeRoom(std::size_t tokens) {
    room_ = tokens + endsOfText;
    tree_.types.resize(room_ + endsOfText);
    tree_.starts.resize(room_ + 1);
  }

  [[nodiscard]] std::uint32_t placeOf(const unsigned char* at) const {
    return static_cast<std::uint32_t>(at - begin_);
  }

  struct Character {
    std::uint8_t itsClass;
    const unsigned char* end;
  };

  static Character characterAt(const unsigned char* at) {
    return *at < 0x80 ? Character{LexerTables::pages[0][*at], at + 1} : characterBeyondAscii(at);
  }

  [[gnu::noinline]] static Character characterBeyondAscii(const unsigned char* at) {
    const unsigned lead = *at++;
    const int following = lead < 0xE0 ? 1 : lead < 0xF0 ? 2 : 3;
    unsigned codePoint = lead & (0x3FU >> static_cast<unsigned>(following));
    for (int i = 0; i < following; ++i) {
      codePoint = codePoint << 6U | (*at++ & 0x3FU);
    }
    return {LexerTables::classOf(codePoint), at};
  }

  // The type of the token if it is a single ASCII character and the next character shows that it
  // ends here; else 0.
  [[nodiscard]] std::uint8_t singleCharacterAt(const unsigned char* at) const {
    if (*at >= LexerTables::beginnings.size() || at + 1 == end_) {
      return 0;
    }
    const LexerTables::Beginning& beginning = LexerTables::beginnings[*at];
    return LexerTables::stops(beginning, at[1]) ? LexerTables::typeOf(beginning.state) : 0;
  }

  Token tokenAt(const unsigned char* const start) {
    Token token{0, start};
    std::uint16_t acceptedState = LexerTables::start;
    std::uint16_t state = LexerTables::start;
    const unsigned char* at = start;
    while (at != end_) {
      const Character character = characterAt(at);
      const std::uint16_t next = LexerTables::next(state, character.itsClass);
      if (next == LexerTables::dead) {
        break;
      }
      state = next;
      at = character.end;
      if (const std::uint8_t type = LexerTables::typeOf(state); type != 0) {
        token = {type, at};
        acceptedState = state;
      } else if (hasFailed(state, at)) {
        break;
      }
    }
    if (at == end_) {
      if (const std::uint8_t type = LexerTables::typeAtEnd(state); type != 0) {
        return {type, at};
      }
    }
    constexpr std::ptrdiff_t longWay = 64;
    if (token.type != 0 && at - token.end > longWay) {
      rememberFailure(acceptedState, token.end, at);
    }
    return token;
  }

  [[nodiscard]] bool hasFailed(std::uint16_t state, const unsigned char* at) const {
    return !failures_.empty() && !failures_[state].empty() && failures_[state][placeOf(at)];
  }

  void rememberFailure(std::uint16_t state, const unsigned char* at, const unsigned char* to) {
    failures_.resize(LexerTables::states.size());
    while (at != to) {
      const Character character = characterAt(at);
      state = LexerTables::next(state, character.itsClass);
      at = character.end;
      failures_[state].resize(tree_.text.size() + 1);
      failures_[state][placeOf(at)] = true;
    }
  }

  SyntaxTree& tree_;
  const unsigned char* begin_;
  const unsigned char* end_;
  std::size_t room_ = 0;                     // how many tokens fit into the tree's vectors
  std::vector<std::vector<bool>> failures_;  // by state and place; empty before the first failure
};

// NOLINTEND(cppcoreguidelines-pro-bounds-*,cppcoreguidelines-pro-type-reinterpret-cast)

}  // namespace

void tokenise(SyntaxTree& tree) { Lexer(tree).run(); }

}  // namespace vorn
