#include <ANTLRInputStream.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "CypherLexer.h"
#include "support/Text.h"

namespace {

// Lexes many short texts with one lexer, so that trying every character is fast enough.
class NameLexer {
 public:
  NameLexer() { lexer.removeErrorListeners(); }

  // The text stands behind a blank, since U+FEFF at the start is a byte order mark.
  bool isName(const std::string& utf8) {
    input.load(" " + utf8, false);
    lexer.setInputStream(&input);
    lexer.nextToken();
    const std::unique_ptr<antlr4::Token> token = lexer.nextToken();
    return token->getType() == vorn::CypherLexer::UnescapedSymbolicName &&
           token->getStartIndex() == 1 && token->getStopIndex() + 1 == input.size();
  }

 private:
  antlr4::ANTLRInputStream input;
  vorn::CypherLexer lexer{&input};
};

template <typename Test>
std::size_t countCharacters(const Test& test) {
  std::size_t count = 0;
  for (char32_t codePoint = 0; codePoint <= 0x10FFFF; ++codePoint) {
    const bool isSurrogate = codePoint >= 0xD800 && codePoint <= 0xDFFF;
    count += !isSurrogate && test(encoded(codePoint)) ? 1 : 0;
  }
  return count;
}

// ID_Start has 136,345 characters. Pc has 10 others.
TEST(IdentifierCharacters, ThatBeginANameAreThoseOfUnicode15) {
  NameLexer lexer;
  EXPECT_EQ(
      countCharacters([&lexer](const std::string& first) { return lexer.isName(first + "zz"); }),
      136345U + 10U);
}

// ID_Continue has 139,482 characters, including those of Pc. Sc has 63 others.
TEST(IdentifierCharacters, ThatContinueANameAreThoseOfUnicode15) {
  NameLexer lexer;
  EXPECT_EQ(countCharacters([&lexer](const std::string& next) { return lexer.isName("z" + next); }),
            139482U + 63U);
}

}  // namespace
