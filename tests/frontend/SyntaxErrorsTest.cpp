#include <gtest/gtest.h>

#include <locale>

#include "CypherInterrogator.h"
#include "ThrowingErrorListener.h"
#include "support/Text.h"

namespace {

std::string messageOf(std::string_view query) {
  try {
    const vorn::CypherInterrogator interrogator(wide(query));
  } catch (const antlr4::ParseCancellationException& error) {
    return error.what();
  }
  return "no error";
}

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

TEST(SyntaxErrors, ReportTheFirstOfSeveral) {
  EXPECT_EQ(placeOf("RETURN ? ) ?"), "line 1:7 ");
  EXPECT_EQ(placeOf("RETURN ) ?"), "line 1:7 ");
}

TEST(SyntaxErrors, AreNeverPrinted) {
  testing::internal::CaptureStdout();
  testing::internal::CaptureStderr();
  messageOf("RETURN ?");
  messageOf("RETURN )");
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
