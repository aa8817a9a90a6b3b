// Tests that the compiled lexer puts each character into the classes that the grammar gives it.
// Sets are ranges, so mistakes would show near the ends of ranges.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <set>
#include <string>

#include "parser/BareLexer.h"
#include "parser/CompiledText.h"
#include "support/Text.h"

namespace {

using Lexer = vorn::CypherLexer;

constexpr char32_t lastCodePoint = 0x10FFFF;

bool isCharacter(char32_t codePoint) {
  return codePoint <= lastCodePoint && (codePoint < 0xD800 || codePoint > 0xDFFF);
}

// The characters on both sides of the ends of all ranges in the lexer's grammar.
std::set<char32_t> charactersBesideBoundaries(const antlr4::atn::ATN& atn) {
  std::set<char32_t> found;
  const auto add = [&](char32_t codePoint) {
    if (isCharacter(codePoint)) {
      found.insert(codePoint);
    }
  };
  for (const antlr4::atn::ATNState* state : atn.states) {
    for (const auto& transition : state->transitions) {
      const antlr4::misc::IntervalSet label = transition->label();
      for (const antlr4::misc::Interval& range : label.getIntervals()) {
        const auto first = static_cast<char32_t>(range.a);
        const auto last = static_cast<char32_t>(range.b);
        add(first == 0 ? 0 : first - 1);
        add(first);
        add(last);
        add(last + 1);
      }
    }
  }
  for (const char32_t codePoint :
       {0x7FU, 0x80U, 0x7FFU, 0x800U, 0xD7FFU, 0xE000U, 0xFFFDU, 0xFFFEU, 0xFFFFU, 0x10000U,
        0x10001U, 0x3FFFFU, 0x40000U, 0xFFFFFU, 0x100000U, 0x10FFFEU, 0x10FFFFU}) {
    add(codePoint);
  }
  return found;
}

TEST(Characters, BesideTheEndsOfRangesAreThoseOfTheBareLexer) {
  BareLexer bare;
  const std::set<char32_t> characters = charactersBesideBoundaries(bare.lexer().getATN());
  // Two ends each of 659 ranges of ID_Start and 768 of ID_Continue, most of them the same ones.
  EXPECT_GT(characters.size(), 2500U);
  EXPECT_GT(std::count_if(characters.begin(), characters.end(),
                          [](char32_t codePoint) { return codePoint > 0xFFFF; }),
            1000);
  for (const char32_t codePoint : characters) {
    const std::string character = encoded(codePoint);
    for (const std::string& text :
         {" " + character, character + "z", "z" + character, "1" + character, "$" + character + "1",
          character + character, "-" + character + "/", "'" + character + "'",
          "`" + character + "`", "/*" + character + "*/", "//" + character, "\\" + character}) {
      ASSERT_EQ(compiledTokens(text), bare.tokens(text)) << std::hex << "U+" << codePoint;
    }
  }
}

template <typename Test>
std::size_t countCharacters(const Test& test) {
  std::size_t count = 0;
  for (char32_t codePoint = 0; codePoint <= lastCodePoint; ++codePoint) {
    count += isCharacter(codePoint) && test(encoded(codePoint)) ? 1 : 0;
  }
  return count;
}

// The text stands behind a semicolon, since U+FEFF at the start is a byte order mark.
bool isName(const std::string& text) {
  const CompiledText compiled(";" + text);
  return compiled.tree().isWhole &&
         compiled.types() == std::vector<std::size_t>{Lexer::T__0, Lexer::UnescapedSymbolicName};
}

// ID_Start has 136,345 characters. Pc has 10 others.
TEST(Characters, ThatBeginANameAreThoseOfUnicode15) {
  EXPECT_EQ(countCharacters([](const std::string& first) { return isName(first + "zz"); }),
            136345U + 10U);
}

// ID_Continue has 139,482 characters, including those of Pc. Sc has 63 others.
TEST(Characters, ThatContinueANameAreThoseOfUnicode15) {
  EXPECT_EQ(countCharacters([](const std::string& next) { return isName("z" + next); }),
            139482U + 63U);
}

// Tries all code points but the surrogates.
TEST(Characters, OfAllKindsMayStandInStringsNamesAndComments) {
  constexpr std::size_t all = 0x110000 - 0x800;
  const auto areOneToken = [](const std::string& text) {
    const CompiledText compiled(text);
    return compiled.tree().isWhole && compiled.tree().tokenCount() == 1;
  };
  EXPECT_EQ(countCharacters([&](const std::string& one) { return areOneToken("'" + one + "'"); }),
            all - 2);
  EXPECT_EQ(countCharacters([&](const std::string& one) { return areOneToken("`" + one + "`"); }),
            all - 1);
  EXPECT_EQ(countCharacters([&](const std::string& one) { return areOneToken("/*" + one + "*/"); }),
            all - 1);
}

TEST(Characters, OfWhiteSpaceAreTwentyNine) {
  EXPECT_EQ(countCharacters([](const std::string& one) {
              return CompiledText(one).types() == std::vector<std::size_t>{Lexer::SP};
            }),
            29U);
}

}  // namespace
