#include <gtest/gtest.h>

#include <locale>
#include <typeinfo>

#include "PropertyFilterExpressionInterrogator.h"
#include "antlr/ThrowingErrorListener.h"
#include "support/SyntaxErrors.h"
#include "support/Text.h"

namespace {

// The library refuses queries without a message, but the messages for filters come from the same
// pipeline.
std::string messageOf(std::string_view query) { return syntaxErrorOfQuery(query); }

// "line L:C " of the message.
std::string placeOf(std::string_view query) {
  const std::string message = messageOf(query);
  return message.substr(0, message.find(' ', message.find(' ') + 1) + 1);
}

TEST(SyntaxErrors, SayLineAndPositionAndThenTheRuntimesText) {
  EXPECT_EQ(messageOf("MATCH (n RETURN n"),
            "line 1:9 no viable alternative at input 'MATCH (n RETURN'");
  EXPECT_EQ(messageOf("RETURN ?"), "line 1:7 token recognition error at: '?'");
}

TEST(SyntaxErrors, CountLinesFromOneAndPositionsFromZero) {
  EXPECT_EQ(placeOf(""), "line 1:0 ");
  EXPECT_EQ(placeOf("?"), "line 1:0 ");
  EXPECT_EQ(placeOf("\n\n  ?"), "line 3:2 ");
  EXPECT_EQ(placeOf("\r\n?"), "line 2:0 ");
  EXPECT_EQ(placeOf("RETURN"), "line 1:6 ");
}

TEST(SyntaxErrors, CountCodePoints) {
  EXPECT_EQ(placeOf("RETURN 'é' ?"), "line 1:11 ");
  EXPECT_EQ(placeOf("RETURN '😀' ?"), "line 1:11 ");
  EXPECT_EQ(placeOf("RETURN '😀' )"), "line 1:11 ");
}

TEST(SyntaxErrors, CountCodePointsInTheLineOfTheError) {
  EXPECT_EQ(placeOf("RETURN '\U00020BB7\U00020BB7', /* 😀\r\n名 */ '😀' ?"), "line 2:9 ");
  EXPECT_EQ(placeOf("RETURN '\U00020BB7\U00020BB7', /* 😀\r\n名 */ '😀' )"), "line 2:9 ");
  EXPECT_EQ(placeOf("RETURN 'e\u0301' ?"), "line 1:12 ");
}

// A lone carriage return does not end a line.
TEST(SyntaxErrors, CountLineFeedsAsEndsOfLines) {
  EXPECT_EQ(placeOf("\r\r?"), "line 1:2 ");
  EXPECT_EQ(placeOf("\n\r?"), "line 2:1 ");
  EXPECT_EQ(placeOf("\u2028?"), "line 1:1 ");
  EXPECT_EQ(placeOf("RETURN 'a\nb' ?"), "line 2:3 ");
}

TEST(SyntaxErrors, OfTheLexerStandWhereTheTokenBegins) {
  EXPECT_EQ(placeOf("RETURN 'abc"), "line 1:7 ");
  EXPECT_EQ(placeOf("RETURN\n `abc\n"), "line 2:1 ");
  EXPECT_EQ(messageOf("RETURN 'a\\x'"), R"(line 1:7 token recognition error at: ''a\x')");
}

TEST(SyntaxErrors, OfTheParserSpellOutLineBreaksOfTheText) {
  EXPECT_EQ(messageOf("RETURN\n\t)"), "line 2:1 no viable alternative at input '\\n\\t)'");
}

std::string messageOfFilter(std::string_view filter) {
  return syntaxErrorOf([&] { vorn::PropertyFilterExpressionInterrogator{wide(filter)}; });
}

TEST(SyntaxErrors, OfAFilterHaveTheSameForm) {
  EXPECT_EQ(messageOfFilter("n.a =\n '😀' + ?"), "line 2:7 token recognition error at: '?'");
  EXPECT_EQ(messageOfFilter("").rfind("line 1:0 ", 0), 0U);
}

TEST(SyntaxErrors, OfAFilterAreThoseOfThePipeline) {
  for (const char* filter : {"", "n.", "n.a = [1, 2", "(n", "{a 1}", "n.a\n= 'not closed", "?",
                             "[x IN n WHERE ]", "EXISTS { RETURN }", "CASE WHEN 1 END"}) {
    EXPECT_EQ(messageOfFilter(filter), syntaxErrorOfExpression(filter)) << filter;
    EXPECT_NE(messageOfFilter(filter), noSyntaxError) << filter;
  }
}

TEST(SyntaxErrors, AreOfTheTypeThatTheRuntimeHasForThem) {
  for (const char* text : {"?", ")", ""}) {
    try {
      const vorn::PropertyFilterExpressionInterrogator interrogator(wide(text));
      FAIL() << text;
    } catch (const std::exception& error) {
      EXPECT_EQ(typeid(error), typeid(antlr4::ParseCancellationException)) << text;
    }
  }
}

TEST(SyntaxErrors, ReportTheFirstOfSeveral) {
  EXPECT_EQ(placeOf("RETURN ? ) ?"), "line 1:7 ");
  EXPECT_EQ(placeOf("RETURN ) ?"), "line 1:7 ");
  EXPECT_EQ(placeOf("RETURN )\nRETURN )"), "line 1:7 ");
}

TEST(SyntaxErrors, AreNeverPrinted) {
  testing::internal::CaptureStdout();
  testing::internal::CaptureStderr();
  messageOf("RETURN ?");
  messageOf("RETURN )");
  messageOf("");
  messageOf("RETURN [x IN xs]");
  messageOf("RETURN (a)-[b]-(c)");
  messageOfFilter("n.a = ?");
  messageOfFilter("n.a = [");
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

class GroupedDigits : public std::numpunct<char> {
 protected:
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\3"; }
};

TEST(SyntaxErrors, WritePlainDecimalsInAnyLocale) {
  const std::locale before = std::locale::global(std::locale(std::locale(), new GroupedDigits));
  const std::string message = messageOf(std::string(1233, '\n') + std::string(5678, ' ') + "?");
  std::locale::global(before);
  EXPECT_EQ(message, "line 1234:5678 token recognition error at: '?'");
}

TEST(ThrowingErrorListener, PutsTheMessageBehindThePlaceUnchanged) {
  try {
    ThrowingErrorListener::instance().syntaxError(nullptr, nullptr, 1, 7, " a\n\tb ", nullptr);
    FAIL();
  } catch (const antlr4::ParseCancellationException& error) {
    EXPECT_STREQ(error.what(), "line 1:7  a\n\tb ");
  }
}

}  // namespace
