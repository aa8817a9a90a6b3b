#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <cctype>

#include "support/Text.h"
#include "support/Tokens.h"

namespace {

using Lexer = vorn::CypherLexer;
using Types = std::vector<std::size_t>;
using Texts = std::vector<std::string>;

TEST(Keywords, MatchInAnyCaseAndBeatNames) {
  for (const char* text : {"match", "Match", "MATCH", "mAtCh"}) {
    EXPECT_EQ(onlyTokenType(text), Lexer::MATCH);
  }
  EXPECT_EQ(onlyTokenType("skip"), Lexer::L_SKIP);
  EXPECT_EQ(onlyTokenType("L_SKIP"), Lexer::UnescapedSymbolicName);
  EXPECT_EQ(onlyTokenType("allShortestPaths"), Lexer::ALLSHORTESTPATHS);
  EXPECT_EQ(tokenTypes("shortest path"),
            (Types{Lexer::UnescapedSymbolicName, Lexer::SP, Lexer::UnescapedSymbolicName}));
}

TEST(Keywords, LoseToALongerName) {
  EXPECT_EQ(onlyTokenType("matches"), Lexer::UnescapedSymbolicName);
  EXPECT_EQ(onlyTokenType("asc1"), Lexer::UnescapedSymbolicName);
  EXPECT_EQ(onlyTokenType("_in"), Lexer::UnescapedSymbolicName);
  EXPECT_EQ(onlyTokenType("in$"), Lexer::UnescapedSymbolicName);
}

TEST(Keywords, AreEachTheirOwnToken) {
  const Pipeline pipeline("");
  for (std::size_t type = Lexer::UNION; type <= Lexer::EXTRACT; ++type) {
    if (type > Lexer::FALSE && type < Lexer::CONSTRAINT) {
      continue;
    }
    const std::string symbol(pipeline.lexer.getVocabulary().getSymbolicName(type));
    std::string word = type == Lexer::L_SKIP ? "SKIP" : symbol;
    EXPECT_EQ(onlyTokenType(word), type) << word;
    std::transform(word.begin(), word.end(), word.begin(),
                   [](char c) { return static_cast<char>(std::tolower(c)); });
    EXPECT_EQ(onlyTokenType(word), type) << word;
    EXPECT_EQ(onlyTokenType(word + "x"), Lexer::UnescapedSymbolicName) << word;
  }
}

TEST(Keywords, TakeAsciiLettersOnly) {
  EXPECT_EQ(onlyTokenType("LIM\u0130T"), Lexer::UnescapedSymbolicName);
  EXPECT_EQ(onlyTokenType("\u017Fet"), Lexer::UnescapedSymbolicName);
}

std::vector<std::pair<std::size_t, std::string>> keywords() {
  std::vector<std::pair<std::size_t, std::string>> words;
  const Pipeline pipeline("");
  for (std::size_t type = Lexer::UNION; type <= Lexer::EXTRACT; ++type) {
    if (type <= Lexer::FALSE || type >= Lexer::CONSTRAINT) {
      const std::string symbol(pipeline.lexer.getVocabulary().getSymbolicName(type));
      words.emplace_back(type, type == Lexer::L_SKIP ? "SKIP" : symbol);
    }
  }
  return words;
}

std::string inDrawnCase(std::string word) {
  for (char& c : word) {
    c = static_cast<char>(*rc::gen::arbitrary<bool>() ? std::tolower(c) : std::toupper(c));
  }
  return word;
}

// Each run tries all keywords: drawing one of them would leave out most mixtures of cases.
RC_GTEST_PROP(Keywords, InAnyMixtureOfCasesAreTheKeyword, ()) {
  for (const auto& keyword : keywords()) {
    const std::string word = inDrawnCase(keyword.second);
    RC_LOG() << word << '\n';
    RC_ASSERT(onlyTokenType(word) == keyword.first);
  }
}

RC_GTEST_PROP(Keywords, WithACharacterOfANameBeforeOrBehindAreNames, ()) {
  const auto before =
      *rc::gen::element<std::string>("_", "q", "Q", "é", "\u203F", "名", "\U00020BB7");
  const auto behind = *rc::gen::element<std::string>("9", "_", "q", "Q", "$", "é", "€", "\u0301",
                                                     "\u203F", "名", "\U00020BB7", "\U000E0100");
  for (const auto& keyword : keywords()) {
    const std::string word = inDrawnCase(keyword.second);
    RC_LOG() << word << '\n';
    RC_ASSERT(onlyTokenType(before + word) == Lexer::UnescapedSymbolicName);
    RC_ASSERT(onlyTokenType(word + behind) == Lexer::UnescapedSymbolicName);
  }
}

TEST(Names, OfOneLetterFromAToFAreHexLetters) {
  for (const char letter : std::string("ABCDEFabcdef")) {
    EXPECT_EQ(onlyTokenType(std::string(1, letter)), Lexer::HexLetter);
  }
  EXPECT_EQ(onlyTokenType("g"), Lexer::UnescapedSymbolicName);
  EXPECT_EQ(onlyTokenType("G"), Lexer::UnescapedSymbolicName);
  EXPECT_EQ(onlyTokenType("ab"), Lexer::UnescapedSymbolicName);
  EXPECT_EQ(onlyTokenType("a1"), Lexer::UnescapedSymbolicName);
}

TEST(Names, MayBeginWithAnUnderscoreAndHoldButNotBeginWithACurrencySign) {
  EXPECT_EQ(onlyTokenType("_x"), Lexer::UnescapedSymbolicName);
  EXPECT_EQ(onlyTokenType("_"), Lexer::UnescapedSymbolicName);
  EXPECT_EQ(tokenTypes("$x"), (Types{Lexer::T__25, Lexer::UnescapedSymbolicName}));
  EXPECT_EQ(onlyTokenType("x$"), Lexer::UnescapedSymbolicName);
  EXPECT_EQ(onlyTokenType("x€"), Lexer::UnescapedSymbolicName);
  EXPECT_EQ(tokenTypes("€x"), (Types{Lexer::IdentifierPart, Lexer::UnescapedSymbolicName}));
}

TEST(Names, BetweenBackQuotesAreOneTokenWithAllBackQuotes) {
  Pipeline pipeline("`a``b`");
  EXPECT_EQ(pipeline.types(), Types{Lexer::EscapedSymbolicName});
  EXPECT_EQ(pipeline.tokens.get(0)->getText(), "`a``b`");
  EXPECT_EQ(onlyTokenType("``"), Lexer::EscapedSymbolicName);
  EXPECT_EQ(onlyTokenType("`\n'\\`"), Lexer::EscapedSymbolicName);
  EXPECT_TRUE(lexerRefuses("`a"));
  EXPECT_EQ(onlyTokenType("`a```"), Lexer::EscapedSymbolicName);
  EXPECT_TRUE(lexerRefuses("`a``"));
  EXPECT_TRUE(lexerRefuses("`"));
}

struct SetSize {
  std::size_t ranges;
  std::size_t codePoints;
};

template <typename Test>
SetSize sizeOfSet(const Test& isMember) {
  SetSize size{0, 0};
  bool before = false;
  for (char32_t codePoint = 1; codePoint <= 0x10FFFF; ++codePoint) {
    const bool member = (codePoint < 0xD800 || codePoint > 0xDFFF) && isMember(codePoint);
    size.codePoints += member ? 1 : 0;
    size.ranges += member && !before ? 1 : 0;
    before = member;
  }
  return size;
}

bool startsAName(char32_t codePoint) {
  const std::string text = encoded(codePoint) + "zz";
  return !lexerRefuses(text) && onlyTokenType(text) == Lexer::UnescapedSymbolicName;
}

TEST(Names, FollowUnicode15) {
  const auto continues = [](char32_t codePoint) {
    const std::string text = "z" + encoded(codePoint);
    return !lexerRefuses(text) && onlyTokenType(text) == Lexer::UnescapedSymbolicName;
  };
  // The last block that Unicode 15.0 added, and characters that 15.1 added.
  EXPECT_TRUE(startsAName(0x31350));
  EXPECT_TRUE(startsAName(0x323AF));
  EXPECT_FALSE(startsAName(0x323B0));
  EXPECT_FALSE(startsAName(0x2EBF0));
  EXPECT_FALSE(continues(0x200C));
  EXPECT_FALSE(continues(0x30FB));
  EXPECT_TRUE(continues(0xE0100));
  EXPECT_TRUE(continues(0xE01EF));
  EXPECT_FALSE(startsAName(0xE0100));
  EXPECT_TRUE(startsAName(0x2040));
  EXPECT_TRUE(startsAName(0xFF3F));
  EXPECT_TRUE(continues(0x1ECB0));
  EXPECT_FALSE(startsAName(0x1ECB0));
}

// The set of a fragment is in the only set transition of its rule.
SetSize sizeOfFragment(const std::string& name) {
  const Pipeline pipeline("");
  const auto& names = pipeline.lexer.getRuleNames();
  const auto rule =
      static_cast<std::size_t>(std::find(names.begin(), names.end(), name) - names.begin());
  for (const antlr4::atn::ATNState* state : pipeline.lexer.getATN().states) {
    if (state == nullptr || state->ruleIndex != rule) {
      continue;
    }
    for (const auto& transition : state->transitions) {
      if (!transition->isEpsilon()) {
        const auto set = transition->label();
        return sizeOfSet([&set](char32_t codePoint) {
          return set.contains(static_cast<std::size_t>(codePoint));
        });
      }
    }
  }
  return {0, 0};
}

TEST(Names, HaveTheSetsOfUnicode15) {
  const auto expectSize = [](const std::string& name, std::size_t ranges, std::size_t codePoints) {
    const SetSize size = sizeOfFragment(name);
    EXPECT_EQ(size.ranges, ranges) << name;
    EXPECT_EQ(size.codePoints, codePoints) << name;
  };
  expectSize("ID_Start", 659, 136345);
  expectSize("ID_Continue", 768, 139482);
  expectSize("Sc", 21, 63);
  expectSize("Pc", 6, 10);
}

TEST(Numbers, TakeALowerCaseXAndO) {
  EXPECT_EQ(onlyTokenType("0x1F"), Lexer::HexInteger);
  EXPECT_EQ(onlyTokenType("0xaF"), Lexer::HexInteger);
  EXPECT_EQ(tokenTypes("0X1F"), (Types{Lexer::DecimalInteger, Lexer::UnescapedSymbolicName}));
  EXPECT_EQ(onlyTokenType("0o17"), Lexer::OctalInteger);
  EXPECT_EQ(tokenTypes("0O17"), (Types{Lexer::DecimalInteger, Lexer::UnescapedSymbolicName}));
  EXPECT_EQ(tokenTypes("0o18"), (Types{Lexer::OctalInteger, Lexer::DecimalInteger}));
}

TEST(Numbers, LeaveToTheNextTokenWhatDoesNotFit) {
  EXPECT_EQ(tokenTexts("0X1F"), (Texts{"0", "X1F"}));
  EXPECT_EQ(tokenTexts("017"), (Texts{"0", "17"}));
  EXPECT_EQ(tokenTexts("1..5"), (Texts{"1", "..", "5"}));
  EXPECT_EQ(tokenTexts("1e+3"), (Texts{"1", "e", "+", "3"}));
  EXPECT_EQ(tokenTexts("1...5"), (Texts{"1", "..", ".5"}));
  EXPECT_EQ(tokenTexts("1.5.5"), (Texts{"1.5", ".5"}));
  EXPECT_EQ(tokenTexts("0x"), (Texts{"0", "x"}));
  EXPECT_EQ(tokenTexts("12ab"), (Texts{"12", "ab"}));
}

TEST(Numbers, EndBehindALeadingZero) {
  EXPECT_EQ(tokenTypes("017"), (Types{Lexer::DecimalInteger, Lexer::DecimalInteger}));
  EXPECT_EQ(onlyTokenType("0"), Lexer::DecimalInteger);
  EXPECT_EQ(onlyTokenType("10"), Lexer::DecimalInteger);
}

TEST(Numbers, OfOneDigitAreDecimalIntegers) {
  for (const char digit : std::string("0123456789")) {
    EXPECT_EQ(onlyTokenType(std::string(1, digit)), Lexer::DecimalInteger);
  }
}

TEST(Numbers, WithAPointOrAnExponentAreReal) {
  EXPECT_EQ(onlyTokenType("1.5"), Lexer::RegularDecimalReal);
  EXPECT_EQ(onlyTokenType(".5"), Lexer::RegularDecimalReal);
  EXPECT_EQ(onlyTokenType("007.50"), Lexer::RegularDecimalReal);
  for (const char* text : {"1.5e3", "1e3", ".5e-3", "1E3", "00e0"}) {
    EXPECT_EQ(onlyTokenType(text), Lexer::ExponentDecimalReal) << text;
  }
  EXPECT_EQ(tokenTypes("1."), (Types{Lexer::DecimalInteger, Lexer::T__22}));
}

TEST(Numbers, TakeNoPlusSignInAnExponent) {
  EXPECT_EQ(tokenTypes("1e+3"),
            (Types{Lexer::DecimalInteger, Lexer::HexLetter, Lexer::T__17, Lexer::DecimalInteger}));
}

TEST(Numbers, LeaveTwoFullStopsToARange) {
  EXPECT_EQ(tokenTypes("1..5"),
            (Types{Lexer::DecimalInteger, Lexer::T__11, Lexer::DecimalInteger}));
}

TEST(Strings, HoldAnythingButTheirQuoteAndABackslash) {
  EXPECT_EQ(onlyTokenType("'a \"b\" `c`\n\u3000😀'"), Lexer::StringLiteral);
  EXPECT_EQ(onlyTokenType("\"it's\""), Lexer::StringLiteral);
  EXPECT_EQ(onlyTokenType("''"), Lexer::StringLiteral);
  EXPECT_EQ(tokenTypes("'a''b'"), (Types{Lexer::StringLiteral, Lexer::StringLiteral}));
}

TEST(Strings, HoldThirteenEscapesAndTwoKindsOfCodePoints) {
  EXPECT_EQ(onlyTokenType(R"('a\'b')"), Lexer::StringLiteral);
  for (const char* escape :
       {"\\\\", "\\'", "\\\"", "\\B", "\\b", "\\F", "\\f", "\\N", "\\n", "\\R", "\\r", "\\T", "\\t",
        "\\u00e9", "\\U00E9", "\\u0001F600", "\\U0001F600"}) {
    EXPECT_EQ(onlyTokenType("'" + std::string(escape) + "'"), Lexer::StringLiteral) << escape;
  }
  for (const char* escape : {"\\x", "\\u12", "\\", "\\a", "\\0"}) {
    EXPECT_TRUE(lexerRefuses("'" + std::string(escape) + "'")) << escape;
  }
}

// Without a listener that throws, the lexer skips the text that it cannot read.
TEST(Strings, WithAWrongEscapeAreReportedUpToItAndReadOnBehindIt) {
  struct Collector : antlr4::BaseErrorListener {
    void syntaxError(antlr4::Recognizer* /*recognizer*/, antlr4::Token* /*symbol*/,
                     std::size_t /*line*/, std::size_t /*position*/, const std::string& message,
                     std::exception_ptr /*exception*/) override {
      messages.push_back(message);
    }
    Texts messages;
  };
  Pipeline pipeline(R"('ab\xyz 1)");
  Collector collector;
  pipeline.lexer.removeErrorListeners();
  pipeline.lexer.addErrorListener(&collector);
  EXPECT_EQ(pipeline.types(),
            (Types{Lexer::UnescapedSymbolicName, Lexer::SP, Lexer::DecimalInteger}));
  EXPECT_EQ(collector.messages, Texts{R"(token recognition error at: ''ab\x')"});
}

TEST(Strings, ThatAreNotClosedAreErrors) {
  EXPECT_TRUE(lexerRefuses("'abc"));
  EXPECT_TRUE(lexerRefuses("\"abc'"));
}

TEST(Backslashes, OutsideAStringAreErrorsUnlessTheyBeginAnEscape) {
  EXPECT_TRUE(lexerRefuses("\\"));
  EXPECT_TRUE(lexerRefuses("\\x"));
  EXPECT_EQ(onlyTokenType("\\n"), Lexer::EscapedChar);
}

TEST(WhiteSpace, HasTwentyNineCharacters) {
  std::u32string found;
  for (char32_t codePoint = 1; codePoint <= 0xFFFF; ++codePoint) {
    if (codePoint < 0xD800 || codePoint > 0xDFFF) {
      const std::string text = encoded(codePoint);
      if (!lexerRefuses(text) && onlyTokenType(text) == Lexer::SP) {
        found += codePoint;
      }
    }
  }
  EXPECT_EQ(found,
            U"\t\n\v\f\r\x1C\x1D\x1E\x1F \u00A0\u1680\u180E\u2000\u2001\u2002\u2003\u2004\u2005"
            U"\u2006\u2007\u2008\u2009\u200A\u2028\u2029\u202F\u205F\u3000");
}

TEST(WhiteSpace, OfAnyKindAndCommentsAreOneToken) {
  EXPECT_EQ(onlyTokenType(" \t\n\v\f\r\x1C\x1D\x1E\x1F"), Lexer::SP);
  EXPECT_EQ(onlyTokenType("\u00A0\u1680\u180E\u2000\u200A\u2028\u2029\u202F\u205F\u3000"),
            Lexer::SP);
  EXPECT_EQ(onlyTokenType(" /* a */\t// b\n /**/"), Lexer::SP);
  EXPECT_EQ(onlyTokenType("/**/"), Lexer::SP);
  EXPECT_TRUE(lexerRefuses("\u200B"));
  EXPECT_TRUE(lexerRefuses("\u0085"));
}

TEST(Comments, OfALineReachToItsEndOrTheEndOfTheText) {
  EXPECT_EQ(onlyTokenType("// a"), Lexer::SP);
  EXPECT_EQ(onlyTokenType("//"), Lexer::SP);
  EXPECT_EQ(tokenTypes("// a\nx"), (Types{Lexer::SP, Lexer::UnescapedSymbolicName}));
  EXPECT_EQ(tokenTypes("// a\r\nx"), (Types{Lexer::SP, Lexer::UnescapedSymbolicName}));
  EXPECT_EQ(onlyTokenType("// a\r"), Lexer::SP);
  EXPECT_EQ(tokenTypes("//z\rz"), (Types{Lexer::T__19, Lexer::T__19, Lexer::UnescapedSymbolicName,
                                         Lexer::SP, Lexer::UnescapedSymbolicName}));
}

TEST(Comments, OfABlockCloseOnlyBehindAnOddRunOfStars) {
  EXPECT_EQ(onlyTokenType("/**/"), Lexer::SP);
  EXPECT_EQ(onlyTokenType("/****/"), Lexer::SP);
  EXPECT_EQ(onlyTokenType("/* a */"), Lexer::SP);
  EXPECT_EQ(onlyTokenType("/* a ***/"), Lexer::SP);
  EXPECT_EQ(tokenTypes("/***/"),
            (Types{Lexer::T__19, Lexer::T__4, Lexer::T__4, Lexer::T__4, Lexer::T__19}));
  EXPECT_EQ(tokenTypes("/* a **/"), (Types{Lexer::T__19, Lexer::T__4, Lexer::SP, Lexer::HexLetter,
                                           Lexer::SP, Lexer::T__4, Lexer::T__4, Lexer::T__19}));
}

TEST(Comments, ThatAreNotClosedAreASlashAndAStar) {
  EXPECT_EQ(tokenTypes("/* z"),
            (Types{Lexer::T__19, Lexer::T__4, Lexer::SP, Lexer::UnescapedSymbolicName}));
}

TEST(Symbols, AreTokensOfTheirOwn) {
  std::size_t type = 1;
  for (const char* text :
       {";",      ",",      "=",      "+=",     "*",      "(",      ")",      "[",      "]",
        ":",      "|",      "..",     "<>",     "<",      ">",      "<=",     ">=",     "+",
        "-",      "/",      "%",      "^",      ".",      "{",      "}",      "$",      "\u27E8",
        "\u3008", "\uFE64", "\uFF1C", "\u27E9", "\u3009", "\uFE65", "\uFF1E", "\u00AD", "\u2010",
        "\u2011", "\u2012", "\u2013", "\u2014", "\u2015", "\u2212", "\uFE58", "\uFE63", "\uFF0D"}) {
    EXPECT_EQ(onlyTokenType(text), type) << text;
    ++type;
  }
  EXPECT_EQ(type, 46U);
}

TEST(Symbols, OfTwoCharactersAdmitNoBlankInside) {
  EXPECT_EQ(tokenTypes("< ="), (Types{Lexer::T__13, Lexer::SP, Lexer::T__2}));
  EXPECT_EQ(onlyTokenType("<="), Lexer::T__15);
}

TEST(Symbols, ThatNoRuleKnowsAreErrors) {
  for (const char* text : {"!", "#", "&", "?", "@", "~", "\u0001", "\u2022", "\U0001F600"}) {
    EXPECT_TRUE(lexerRefuses(text)) << text;
  }
}

rc::Gen<std::string> genLexable() {
  return rc::gen::map(rc::gen::container<std::vector<std::string>>(rc::gen::element<std::string>(
                          "match", "x", "a", "`q``r`", "1", "0x1F", ".5", "1e3", "'s\\n'", "\"\"",
                          " ", "/* c */", "//z\n", "<", "=", "..", ".", "$", "\u2014", "名前",
                          "\U00020BB7", "\\n", "\t", "(", "]", "|")),
                      [](const std::vector<std::string>& parts) {
                        std::string text;
                        for (const std::string& part : parts) {
                          text += part;
                        }
                        return text;
                      });
}

RC_GTEST_PROP(Tokens, StandSideBySideAndGiveTheTextBack, ()) {
  const std::string text = *genLexable();
  Pipeline pipeline(text);
  pipeline.tokens.fill();
  std::string joined;
  std::size_t next = 0;
  for (const antlr4::Token* token : pipeline.tokens.getTokens()) {
    if (token->getType() != antlr4::Token::EOF) {
      RC_ASSERT(token->getStartIndex() == next);
      next = token->getStopIndex() + 1;
      joined += token->getText();
    }
  }
  RC_ASSERT(joined == text);
}

RC_GTEST_PROP(Tokens, AreNeverOfATypeThatAnotherOneAlwaysBeats, ()) {
  for (const std::size_t type : tokenTypes(*genLexable())) {
    for (const std::size_t never : {Lexer::HexDigit, Lexer::Digit, Lexer::NonZeroDigit,
                                    Lexer::NonZeroOctDigit, Lexer::OctDigit, Lexer::ZeroDigit,
                                    Lexer::IdentifierStart, Lexer::WHITESPACE, Lexer::Comment}) {
      RC_ASSERT(type != never);
    }
  }
}

}  // namespace
