// Tests which tokens the compiled lexer finds, also where the text ends inside a token.

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <string>
#include <vector>

#include "parser/BareLexer.h"
#include "parser/CompiledText.h"

namespace {

using namespace std::string_literals;
using Lexer = vorn::CypherLexer;
using Types = std::vector<std::size_t>;
using Texts = std::vector<std::string>;

Types typesOf(const std::string& text) { return CompiledText(text).types(); }

Texts textsOf(const std::string& text) { return CompiledText(text).tokenTexts(); }

// The type of the only token of a text, 0 if it has another number of them.
std::size_t onlyType(const std::string& text) {
  const CompiledText compiled(text);
  return compiled.tree().isWhole && compiled.tree().tokenCount() == 1 ? compiled.types().front()
                                                                      : 0;
}

// The byte offset of the first character that no token begins with.
std::size_t lexedBytes(const std::string& text) {
  const CompiledText compiled(text);
  EXPECT_EQ(compiled.tree().isWhole, compiled.tree().starts.back() == text.size()) << text;
  return compiled.tree().starts.back();
}

TEST(CompiledLexer, FindsNoTokenInAnEmptyText) {
  const CompiledText compiled("");
  EXPECT_EQ(compiled.tree().tokenCount(), 0U);
  EXPECT_TRUE(compiled.tree().isWhole);
}

TEST(CompiledLexer, PutsTheEndOfTheTextBehindTheLastToken) {
  for (const char* text : {"", "a", "RETURN 1", "?", "a ?"}) {
    const CompiledText compiled(text);
    const vorn::SyntaxTree& tree = compiled.tree();
    ASSERT_GT(tree.types.size(), tree.tokenCount() + vorn::SyntaxTree::longestLookahead) << text;
    for (std::size_t i = tree.tokenCount(); i < tree.types.size(); ++i) {
      EXPECT_EQ(tree.types[i], vorn::SyntaxTree::endOfText) << text;
    }
  }
}

TEST(CompiledLexer, TakesALoneLetterFromAToFForAHexLetter) {
  for (const char letter : "ABCDEFabcdef"s) {
    EXPECT_EQ(onlyType(std::string(1, letter)), Lexer::HexLetter) << letter;
  }
  for (const char* name : {"g", "G", "ab", "a1", "aa", "_", "x$", "x€", "a$", "_a"}) {
    EXPECT_EQ(onlyType(name), Lexer::UnescapedSymbolicName) << name;
  }
}

TEST(CompiledLexer, TakesAKeywordInAnyCaseButNotWithinAName) {
  EXPECT_EQ(onlyType("match"), Lexer::MATCH);
  EXPECT_EQ(onlyType("mAtCh"), Lexer::MATCH);
  EXPECT_EQ(onlyType("skip"), Lexer::L_SKIP);
  EXPECT_EQ(onlyType("allShortestPaths"), Lexer::ALLSHORTESTPATHS);
  for (const char* name : {"matches", "_match", "match1", "in$", "LIM\u0130T", "\u017Fet"}) {
    EXPECT_EQ(onlyType(name), Lexer::UnescapedSymbolicName) << name;
  }
}

TEST(CompiledLexer, LetsNoCurrencySignBeginAName) {
  EXPECT_EQ(typesOf("$x"), (Types{Lexer::T__25, Lexer::UnescapedSymbolicName}));
  EXPECT_EQ(typesOf("€x"), (Types{Lexer::IdentifierPart, Lexer::UnescapedSymbolicName}));
}

TEST(CompiledLexer, TakesNumbersWithALowerCaseXAndOOnly) {
  EXPECT_EQ(onlyType("0x1F"), Lexer::HexInteger);
  EXPECT_EQ(onlyType("0o17"), Lexer::OctalInteger);
  EXPECT_EQ(textsOf("0X1F"), (Texts{"0", "X1F"}));
  EXPECT_EQ(typesOf("0X1F"), (Types{Lexer::DecimalInteger, Lexer::UnescapedSymbolicName}));
  EXPECT_EQ(textsOf("0O17"), (Texts{"0", "O17"}));
  EXPECT_EQ(textsOf("0o18"), (Texts{"0o1", "8"}));
  EXPECT_EQ(textsOf("0x1G"), (Texts{"0x1", "G"}));
}

TEST(CompiledLexer, EndsAnIntegerBehindALeadingZero) {
  EXPECT_EQ(textsOf("017"), (Texts{"0", "17"}));
  EXPECT_EQ(typesOf("017"), (Types{Lexer::DecimalInteger, Lexer::DecimalInteger}));
  EXPECT_EQ(onlyType("0"), Lexer::DecimalInteger);
  EXPECT_EQ(onlyType("10"), Lexer::DecimalInteger);
  EXPECT_EQ(onlyType("007.50"), Lexer::RegularDecimalReal);
  EXPECT_EQ(onlyType("00e0"), Lexer::ExponentDecimalReal);
}

TEST(CompiledLexer, TakesNoPlusSignIntoAnExponent) {
  EXPECT_EQ(onlyType("1e-3"), Lexer::ExponentDecimalReal);
  EXPECT_EQ(textsOf("1e+3"), (Texts{"1", "e", "+", "3"}));
  EXPECT_EQ(typesOf("1e+3"),
            (Types{Lexer::DecimalInteger, Lexer::HexLetter, Lexer::T__17, Lexer::DecimalInteger}));
}

TEST(CompiledLexer, LeavesTwoFullStopsToARange) {
  EXPECT_EQ(textsOf("1..5"), (Texts{"1", "..", "5"}));
  EXPECT_EQ(textsOf("1...5"), (Texts{"1", "..", ".5"}));
  EXPECT_EQ(textsOf("1.5.5"), (Texts{"1.5", ".5"}));
  EXPECT_EQ(textsOf("1."), (Texts{"1", "."}));
}

TEST(CompiledLexer, ClosesACommentOnlyBehindAnOddRunOfStars) {
  EXPECT_EQ(onlyType("/**/"), Lexer::SP);
  EXPECT_EQ(onlyType("/****/"), Lexer::SP);
  EXPECT_EQ(onlyType("/* a ***/"), Lexer::SP);
  EXPECT_EQ(textsOf("/***/"), (Texts{"/", "*", "*", "*", "/"}));
  EXPECT_EQ(textsOf("/* a **/"), (Texts{"/", "*", " ", "a", " ", "*", "*", "/"}));
}

TEST(CompiledLexer, TakesACommentThatIsNotClosedForASlashAndAStar) {
  EXPECT_EQ(textsOf("/* z"), (Texts{"/", "*", " ", "z"}));
  EXPECT_EQ(textsOf("a /* z"), (Texts{"a", " ", "/", "*", " ", "z"}));
  EXPECT_EQ(typesOf("/*"), (Types{Lexer::T__19, Lexer::T__4}));
  // The rest of the comment is read as tokens, and quotes in it may close a string.
  EXPECT_EQ(textsOf("/* '/* ' */"), (Texts{"/* '/* ' */"}));
  EXPECT_EQ(textsOf("/* '/* '"), (Texts{"/", "*", " ", "'/* '"}));
  EXPECT_EQ(textsOf("/* " + std::string(100, 'z') + " // b"),
            (Texts{"/", "*", " ", std::string(100, 'z'), " // b"}));
}

TEST(CompiledLexer, EndsALineCommentWithItsLineOrTheText) {
  EXPECT_EQ(onlyType("//"), Lexer::SP);
  EXPECT_EQ(onlyType("// a"), Lexer::SP);
  EXPECT_EQ(onlyType("// a\r"), Lexer::SP);
  EXPECT_EQ(onlyType("// a\n// b"), Lexer::SP);
  EXPECT_EQ(textsOf("1// a"), (Texts{"1", "// a"}));
  EXPECT_EQ(textsOf("// a\r\nx"), (Texts{"// a\r\n", "x"}));
  EXPECT_EQ(textsOf("//z\rz"), (Texts{"/", "/", "z", "\r", "z"}));
}

TEST(CompiledLexer, TakesStringsOverLines) {
  EXPECT_EQ(onlyType("'a\nb\r\nc\u2028'"), Lexer::StringLiteral);
  EXPECT_EQ(onlyType("\"it's\n\""), Lexer::StringLiteral);
  EXPECT_EQ(textsOf("'a''b'"), (Texts{"'a'", "'b'"}));
}

TEST(CompiledLexer, TakesAStringWithItsEscapes) {
  for (const char* escape :
       {"\\\\", "\\'", "\\\"", "\\B", "\\b", "\\F", "\\f", "\\N", "\\n", "\\R", "\\r", "\\T", "\\t",
        "\\u00e9", "\\U00E9", "\\u0001F600", "\\U0001F600", "\\u00e9x"}) {
    EXPECT_EQ(onlyType("'"s + escape + "'"), Lexer::StringLiteral) << escape;
  }
}

TEST(CompiledLexer, FindsNoTokenInAStringWithAWrongEscape) {
  for (const char* escape : {"\\x", "\\u12", "\\u12g4", "\\", "\\a", "\\0", "\\é", "\\😀"}) {
    EXPECT_EQ(lexedBytes("1 '"s + escape + "'"), 2U) << escape;
  }
  EXPECT_EQ(lexedBytes("1 'a\\"), 2U);
}

TEST(CompiledLexer, TakesAnEscapeOutsideAString) {
  EXPECT_EQ(onlyType("\\n"), Lexer::EscapedChar);
  EXPECT_EQ(textsOf("\\u00e9\\t"), (Texts{"\\u00e9", "\\t"}));
  EXPECT_EQ(textsOf("\\u00e900"), (Texts{"\\u00e9", "0", "0"}));
  EXPECT_EQ(lexedBytes("\\"), 0U);
  EXPECT_EQ(lexedBytes("1\\x"), 1U);
}

TEST(CompiledLexer, JoinsNamesAtADoubledBackQuote) {
  EXPECT_EQ(textsOf("`a``b`"), (Texts{"`a``b`"}));
  EXPECT_EQ(textsOf("`a` `b`"), (Texts{"`a`", " ", "`b`"}));
  EXPECT_EQ(onlyType("``"), Lexer::EscapedSymbolicName);
  EXPECT_EQ(onlyType("`\n'\\`"), Lexer::EscapedSymbolicName);
  EXPECT_EQ(onlyType("`a```"), Lexer::EscapedSymbolicName);
  // The first name is a token, although a second one seems to begin.
  EXPECT_EQ(textsOf("`a``"), (Texts{"`a`"}));
  EXPECT_EQ(lexedBytes("`a``"), 3U);
  EXPECT_EQ(lexedBytes("`"), 0U);
}

TEST(CompiledLexer, TellsTypographicHeadsAndDashesApart) {
  std::size_t type = Lexer::T__26;
  for (const char* symbol : {"\u27E8", "\u3008", "\uFE64", "\uFF1C", "\u27E9", "\u3009", "\uFE65",
                             "\uFF1E", "\u00AD", "\u2010", "\u2011", "\u2012", "\u2013", "\u2014",
                             "\u2015", "\u2212", "\uFE58", "\uFE63", "\uFF0D"}) {
    EXPECT_EQ(onlyType(symbol), type) << symbol;
    ++type;
  }
  EXPECT_EQ(type, Lexer::UNION);
}

TEST(CompiledLexer, LeavesOutAByteOrderMarkAtTheBeginningOnly) {
  const CompiledText marked("\uFEFFRETURN 1");
  EXPECT_TRUE(marked.tree().isWhole);
  EXPECT_EQ(marked.tokenTexts(), (Texts{"RETURN", " ", "1"}));
  EXPECT_EQ(onlyType("\uFEFF"), 0U);
  EXPECT_TRUE(CompiledText("\uFEFF").tree().isWhole);
  EXPECT_EQ(lexedBytes("\uFEFF\uFEFF"), 3U);
  EXPECT_EQ(lexedBytes("1\uFEFF"), 1U);
  EXPECT_EQ(lexedBytes("\xEF\xBB\xBC"), 3U);
  EXPECT_EQ(onlyType("'\uFEFF'"), Lexer::StringLiteral);
}

TEST(CompiledLexer, ReadsPastZeroCharacters) {
  EXPECT_EQ(onlyType("'\0'"s), Lexer::StringLiteral);
  EXPECT_EQ(onlyType("`\0`"s), Lexer::EscapedSymbolicName);
  EXPECT_EQ(onlyType("/*\0*/"s), Lexer::SP);
  EXPECT_EQ(lexedBytes("a\0b"s), 1U);
  EXPECT_EQ(lexedBytes("\0"s), 0U);
}

TEST(CompiledLexer, StopsAtTheFirstCharacterOfNoToken) {
  for (const char* character : {"!", "#", "&", "?", "@", "~", "\u0001", "\u2022", "\U0001F600"}) {
    EXPECT_EQ(lexedBytes("a = "s + character + " b"), 4U) << character;
  }
}

TEST(CompiledLexer, ReadsNothingBehindTheEndOfTheText) {
  // Each text is the part of a longer one before the bar, where the token would go on.
  for (const char* text : {"ab|c", "12|3", "'a|'", "/* |*/", "// |\n", "1e|5", "1.|5", "`a|`",
                           "a|\u0301", "<|=", ".|.", "0x|1", "'\\u00|e9'", "\u2028|\u2028"}) {
    const std::string whole(text);
    const std::size_t length = whole.find('|');
    const std::string joined = whole.substr(0, length) + whole.substr(length + 1);
    vorn::SyntaxTree tree(std::string_view(joined).substr(0, length));
    vorn::tokenise(tree);
    const CompiledText alone(whole.substr(0, length));
    EXPECT_EQ(tree.types, alone.tree().types) << text;
    EXPECT_EQ(tree.starts, alone.tree().starts) << text;
    EXPECT_EQ(tree.isWhole, alone.tree().isWhole) << text;
  }
}

TEST(CompiledLexer, TakesWhatIsThereOfATokenThatTheTextCutsOff) {
  EXPECT_EQ(textsOf("0x"), (Texts{"0", "x"}));
  EXPECT_EQ(textsOf("0o"), (Texts{"0", "o"}));
  EXPECT_EQ(textsOf("1e"), (Texts{"1", "e"}));
  EXPECT_EQ(textsOf("1e-"), (Texts{"1", "e", "-"}));
  EXPECT_EQ(textsOf("1.5e"), (Texts{"1.5", "e"}));
  EXPECT_EQ(textsOf("a /"), (Texts{"a", " ", "/"}));
  EXPECT_EQ(textsOf("/* *"), (Texts{"/", "*", " ", "*"}));
  EXPECT_EQ(lexedBytes("a 'b"), 2U);
  EXPECT_EQ(lexedBytes("a \"b'"), 2U);
  EXPECT_EQ(lexedBytes("a '\\u00e"), 2U);
  EXPECT_EQ(lexedBytes("a \\u00"), 2U);
}

// Pieces that are tokens, that seem to begin tokens, or that end them.
const std::vector<std::string>& pieces() {
  static const std::vector<std::string> all = {
      "match",  "x",      "a",          "`q``r`", "1",  "0x1F",  "0x",         "0o7",  "0",
      ".5",     "1e3",    "1e+",        "'s\\n",  "'",  "\"",    "`",          " ",    "/*",
      "*/",     "*",      "/",          "//",     "\n", "\r",    "\\",         "\\u1", "\\n",
      "\u2014", "\u27E8", "名前",       "$",      "€",  ".",     "..",         "<",    "=",
      "é",      "\u0301", "\U00020BB7", "\t",     "(",  "]",     "|",          "e",    "-",
      "\uFEFF", "\u3000", "?",          "😀",      "E5", "u00e9", "\\U0001F600"};
  return all;
}

TEST(CompiledLexer, DividesEachPairAndTripleOfPiecesAsTheBareLexer) {
  BareLexer bare;
  for (const std::string& first : pieces()) {
    for (const std::string& second : pieces()) {
      expectTokensOfTheBareLexer(bare, first + second);
      for (const char* third : {"'", "*/", "\n", "1", "`", "x"}) {
        ASSERT_EQ(compiledTokens(first + second + third), bare.tokens(first + second + third))
            << first << second << third;
      }
    }
  }
}

RC_GTEST_PROP(CompiledLexer, DividesAnyTextAsTheBareLexer, ()) {
  BareLexer bare;
  std::string text;
  for (const std::string& piece :
       *rc::gen::container<std::vector<std::string>>(rc::gen::elementOf(pieces()))) {
    text += piece;
  }
  RC_LOG() << text << '\n';
  RC_ASSERT(compiledTokens(text) == bare.tokens(text));
}

RC_GTEST_PROP(CompiledLexer, GivesTheTextBack, ()) {
  std::string text;
  for (const std::string& piece :
       *rc::gen::container<std::vector<std::string>>(rc::gen::elementOf(pieces()))) {
    text += piece;
  }
  const CompiledText compiled(text);
  std::string joined = text.rfind("\uFEFF", 0) == 0 ? "\uFEFF" : "";
  for (const std::string& token : compiled.tokenTexts()) {
    RC_ASSERT(!token.empty());
    joined += token;
  }
  RC_ASSERT(text.compare(0, joined.size(), joined) == 0);
  RC_ASSERT(compiled.tree().isWhole == (joined.size() == text.size()));
}

}  // namespace
