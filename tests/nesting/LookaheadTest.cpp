// What counts as nesting while the parser looks ahead: inside `[x IN` it has to, up to where the
// comprehension or list ends.

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

#include "Repeated.h"
#include "StackedThread.h"
#include "support/Text.h"
#include "vorn/vorn.h"

namespace {

using vorn::WideString;

void expectAccepted(const std::string& inner) {
  const WideString text = wide("[x IN " + inner + "]");
  onStackOf(128 * kibibyte, [&] {
    EXPECT_EQ(vorn::ReplaceVariableNamesInPropertyFilterOCExpression(text, {}), text);
  });
}

TEST(LookingAhead, DoesNotCountBracketsThatStandSideBySide) {
  expectAccepted(repeated("(a) + [b] + f(c) + ", 300) + "a");
}

TEST(LookingAhead, DoesNotCountCasesThatStandSideBySide) {
  expectAccepted(repeated("CASE WHEN a THEN b END + ", 300) + "a");
}

TEST(LookingAhead, DoesNotTakeAPropertyNamedCaseForACase) {
  expectAccepted("a" + repeated(".case", 300));
  expectAccepted("a" + repeated(". case", 300));
  expectAccepted(repeated("{case: 1}.case + ", 300) + "a");
}

TEST(LookingAhead, CountsAMapWithAKeyNamedCaseOnce) {
  constexpr std::size_t fitting = 120;  // though not twice as many
  for (const char* level : {"{case: ", "{a: 1, case: "}) {
    const WideString text =
        wide("[x IN " + repeated(level, fitting) + "a" + repeated("}", fitting) + "]");
    onStackOf(512 * kibibyte, [&] {
      EXPECT_EQ(vorn::ReplaceVariableNamesInPropertyFilterOCExpression(text, {}), text);
    });
  }
}

TEST(LookingAhead, DoesNotTakeALabelNamedCaseForACase) {
  expectAccepted(repeated("a:CASE:CASE + ", 300) + "a");
  expectAccepted("{k: " + repeated("a:CASE + ", 300) + "a}");
}

TEST(LookingAhead, DoesNotTakeATypeNamedCaseForACase) {
  expectAccepted("()-[:A" + repeated("|CASE", 300) + "]-()");
  expectAccepted("()-[r:A" + repeated(" | CASE", 300) + "]-()");
}

TEST(LookingAhead, KnowsAMapBehindALabelNamedExists) {
  expectAccepted("(:EXISTS {a: 1" + repeated(", case: 1", 300) + "})--()");
}

TEST(LookingAhead, KnowsAMapWhoseEntryIsALabelledMap) {
  expectAccepted("{a: {}:CASE" + repeated(", case: 1", 300) + "}");
}

TEST(LookingAhead, ForgetsALabelNamedCaseWithItsBracket) {
  expectAccepted(repeated("(a:CASE) + ", 300) + "a");
}

// Each of these opens a level that the name END must not seem to close.
TEST(LookingAhead, DoesNotTakeANameEndForTheEndOfACase) {
  for (const char* level : {"CASE a.end WHEN ", "CASE a:END WHEN ", "CASE {end: 1} WHEN ",
                            "CASE {a: 1, end: 1} WHEN ", "CASE ()-[:A|END]-() WHEN "}) {
    const WideString text = wide("[x IN " + repeated(level, 5000));
    onStackOf(128 * kibibyte, [&] {
      EXPECT_THROW(vorn::ReplaceVariableNamesInPropertyFilterOCExpression(text, {}),
                   std::length_error)
          << level;
    });
  }
}

TEST(LookingAhead, FromDeepInsideATextCountsBothDepths) {
  constexpr std::size_t fitting = 450;  // alone
  const std::string ahead = "[x IN " + repeated("[", fitting) + "a" + repeated("]", fitting) + "]";
  const WideString shallow = wide(ahead);
  const WideString deep = wide(repeated("(", fitting) + ahead + repeated(")", fitting));
  onStackOf(mebibyte, [&] {
    EXPECT_EQ(vorn::ReplaceVariableNamesInPropertyFilterOCExpression(shallow, {}), shallow);
    EXPECT_THROW(vorn::ReplaceVariableNamesInPropertyFilterOCExpression(deep, {}),
                 std::length_error);
  });
}

}  // namespace
