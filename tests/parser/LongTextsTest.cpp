// Tests long texts, some of which tempt a lexer or a parser to read the rest of the text again at
// every place. No time is measured: such a mistake would make the tests run for ever.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "nesting/Repeated.h"
#include "nesting/Shapes.h"
#include "nesting/StackedThread.h"
#include "parser/BareLexer.h"
#include "parser/CompiledText.h"

using vorn::Verdict;

namespace {

using Lexer = vorn::CypherLexer;

constexpr std::size_t megabyte = 1'000'000;
constexpr std::size_t many = 100'000;

void expectOneToken(std::size_t type, const std::string& text) {
  const CompiledText compiled(text);
  EXPECT_TRUE(compiled.tree().isWhole) << text.substr(0, 9);
  EXPECT_EQ(compiled.types(), std::vector{type}) << text.substr(0, 9);
}

std::string quoted(const std::string& quote, const std::string& text) {
  return quote + text + quote;
}

TEST(AMegabyte, MayBeOneToken) {
  const std::string letters(megabyte, 'x');
  expectOneToken(Lexer::UnescapedSymbolicName, letters);
  expectOneToken(Lexer::UnescapedSymbolicName, repeated("名", megabyte / 3));
  expectOneToken(Lexer::EscapedSymbolicName, quoted("`", letters));
  expectOneToken(Lexer::EscapedSymbolicName, std::string(megabyte, '`'));
  expectOneToken(Lexer::StringLiteral, quoted("'", letters));
  expectOneToken(Lexer::StringLiteral, quoted("\"", repeated("\\u00e9", megabyte / 6)));
  expectOneToken(Lexer::StringLiteral, quoted("'", repeated("😀\n", megabyte / 5)));
  expectOneToken(Lexer::DecimalInteger, std::string(megabyte, '1'));
  expectOneToken(Lexer::HexInteger, "0x" + std::string(megabyte, 'f'));
  expectOneToken(Lexer::OctalInteger, "0o" + std::string(megabyte, '7'));
  expectOneToken(Lexer::RegularDecimalReal, std::string(megabyte, '0') + ".5");
  expectOneToken(Lexer::RegularDecimalReal, "." + std::string(megabyte, '5'));
  expectOneToken(Lexer::ExponentDecimalReal, "1e-" + std::string(megabyte, '5'));
  expectOneToken(Lexer::SP, std::string(megabyte, ' '));
  expectOneToken(Lexer::SP, repeated("\u3000", megabyte / 3));
  expectOneToken(Lexer::SP, "/*" + letters + "*/");
  expectOneToken(Lexer::SP, "/*" + std::string(megabyte, '*') + "*/");
  expectOneToken(Lexer::SP, "//" + letters);
  expectOneToken(Lexer::SP, repeated("// x\n", megabyte / 5));
  expectOneToken(Lexer::SP, repeated("/**/", megabyte / 4));
}

TEST(AMegabyte, OfATokenThatDoesNotEndIsNone) {
  for (const char* open : {"'", "\"", "`", "'\\"}) {
    const CompiledText compiled("1 " + (open + std::string(megabyte, 'x')));
    EXPECT_FALSE(compiled.tree().isWhole) << open;
    EXPECT_EQ(compiled.tree().tokenCount(), 2U) << open;
  }
}

TEST(ManyTokens, OfOneDigitAreThatMany) {
  const CompiledText compiled(std::string(many, '0'));
  EXPECT_TRUE(compiled.tree().isWhole);
  EXPECT_EQ(compiled.types(), std::vector<std::size_t>(many, Lexer::DecimalInteger));
}

TEST(ManyTokens, BehindCommentsThatAreNotClosedAreThatMany) {
  const CompiledText compiled(repeated("/* ", many));
  EXPECT_TRUE(compiled.tree().isWhole);
  EXPECT_EQ(compiled.tree().tokenCount(), 3 * many);
  EXPECT_EQ(compiled.tree().types[3 * many - 3], Lexer::T__19);
  EXPECT_EQ(compiled.tree().types[3 * many - 2], Lexer::T__4);
  EXPECT_EQ(compiled.tree().types[3 * many - 1], Lexer::SP);
}

// Pieces to repeat, and ends that decide what the beginning of the text is.
const std::vector<std::pair<std::string, std::string>>& piecesAndEnds() {
  static const std::vector<std::pair<std::string, std::string>> all = {
      {"/* ", ""},     {"/*", ""},   {"/*", "*/"},      {"/* ", "/***/"}, {"/", "\rz"},
      {"// x", "\rz"}, {"/**", "/"}, {"/***/ ", ""},    {"/*'", ""},      {"`a", ""},
      {"``", "`"},     {"1e", ""},   {"0x", ""},        {"'/*'", ""},     {"/*é", ""},
      {"/*😀 ", ""},    {" /*", ""},  {"/* */ /* ", ""}, {"a//", "\r?"},   {"\\n", "\\"},
      {"1.", "."},     {".", ""},    {"/*//\n", ""},    {"/*\r", "//\r"}};
  return all;
}

TEST(ManyTokens, BehindCommentsOfBothKindsThatAreNotClosedAreDivided) {
  // A line comment ends with a line feed, so a lone carriage return leaves all of these open.
  const CompiledText compiled(repeated("/* // ", many) + "\rx");
  EXPECT_TRUE(compiled.tree().isWhole);
  EXPECT_EQ(compiled.types().front(), Lexer::T__19);
}

TEST(ManyPieces, ThatMayBelongToOneTokenEnd) {
  for (const auto& [piece, end] : piecesAndEnds()) {
    const CompiledText compiled(repeated(piece, many) + end);
    EXPECT_GT(compiled.tree().starts.size(), 0U) << piece;
  }
}

TEST(ManyPieces, ThatMayBelongToOneTokenAreDividedAsByTheBareLexer) {
  BareLexer bare;
  for (const auto& [piece, end] : piecesAndEnds()) {
    for (const std::size_t count : {1U, 2U, 63U, 64U, 65U, 130U, 300U}) {
      expectTokensOfTheBareLexer(bare, repeated(piece, count) + end);
      expectTokensOfTheBareLexer(bare, repeated(piece, count) + end + " '" + end);
    }
  }
}

TEST(ManyPieces, OfAnExpressionAreAccepted) {
  for (const char* piece :
       {"a.b = 1 AND ", "(a)-[b]-(c) + ", "(a)-[b]-", "[x IN a | x] + ", "[x IN a] + ",
        "any(x IN a) OR ", "any(a) OR ", "count(a) + ", "a.b.c(d) + ", "NOT ",
        "a = ", "(a)-[b]-(c)-[d]-(e.f) + ", "{a: 1}.b + ", "CASE a WHEN b THEN c END + "}) {
    CompiledText compiled(repeated(piece, many) + "(a)");
    EXPECT_EQ(compiled.parseExpression(), Verdict::Accepted) << piece;
  }
}

TEST(ManyPieces, WithAWrongEndAreRefused) {
  for (const char* piece :
       {"a.b = 1 AND ", "(a)-[b]-(c) + ", "(a)-[b]-", "[x IN a | x] + ", "any(x IN a) OR "}) {
    CompiledText compiled(repeated(piece, many) + "(a");
    EXPECT_EQ(compiled.parseExpression(), Verdict::Refused) << piece;
  }
}

TEST(ManyPieces, OfAQueryAreAccepted) {
  for (const auto& [piece, end] :
       std::vector<std::pair<const char*, const char*>>{{"MATCH (a) ", "RETURN 1"},
                                                        {"WITH 1 AS a ", "RETURN 1"},
                                                        {"CREATE (a) ", ""},
                                                        {"CALL a.b() YIELD c ", "RETURN 1"},
                                                        {"RETURN 1 UNION ", "RETURN 1"},
                                                        {"UNWIND a AS b ", "WITH b RETURN b"}}) {
    CompiledText compiled(repeated(piece, many) + end);
    EXPECT_EQ(compiled.parseQuery(), Verdict::Accepted) << piece;
  }
}

// The stack is as large as the library uses at most.
TEST(ManyLevels, AreAcceptedOrRefusedWhetherTheyAreClosedOrNot) {
  constexpr std::size_t levels = 5'000;  // which fit when sanitizers enlarge the frames
  for (const Shape& shape : allShapes()) {
    CompiledText closed(narrow(shape.nested(levels)));
    CompiledText open(narrow(shape.unbalanced(levels)));
    onStackOf(64 * mebibyte, [&] {
      EXPECT_EQ(closed.parseExpression(), Verdict::Accepted) << shape;
      EXPECT_EQ(open.parseExpression(), Verdict::Refused) << shape;
    });
  }
}

TEST(ManyLevels, AreTooDeepForASmallStackWhetherTheyAreClosedOrNot) {
  constexpr std::size_t levels = 20'000;
  for (const Shape& shape : allShapes()) {
    CompiledText closed(narrow(shape.nested(levels)));
    CompiledText open(narrow(shape.unbalanced(levels)));
    onStackOf(128 * kibibyte, [&] {
      EXPECT_EQ(closed.parseExpression(), Verdict::TooDeep) << shape;
      EXPECT_EQ(open.parseExpression(), Verdict::TooDeep) << shape;
    });
  }
}

}  // namespace
