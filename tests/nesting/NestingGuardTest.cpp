// The guard itself, asked at places of the stack that a test goes to without any text.

#include <ANTLRInputStream.h>
#include <CommonTokenStream.h>
#include <gtest/gtest.h>

#include <cstring>
#include <functional>
#include <memory_resource>
#include <stdexcept>
#include <string>

#include "GuardedRecognisers.h"
#include "NestingGuard.h"
#include "Repeated.h"
#include "StackedThread.h"

namespace {

// Runs `work` with that much more of the stack in use. Must not be inlined: the guard looks at
// where a function's frame begins.
[[gnu::noinline]] void below(std::size_t bytes, const std::function<void()>& work) {
  auto* used = static_cast<char*>(__builtin_alloca(bytes));
  std::memset(used, 1, bytes);
  work();
  EXPECT_EQ(*used, 1);
}

template <typename Question>
[[gnu::noinline]] bool refuses(Question question) {
  try {
    question();
    return false;
  } catch (const std::length_error&) {
    return true;
  }
}

bool refusesARule(const vorn::NestingGuard& guard) {
  return refuses([&] { guard.enterRule(); });
}

bool refusesAnError(const vorn::NestingGuard& guard) {
  return refuses([&] { guard.meetError(); });
}

class GuardedExpression {
 public:
  explicit GuardedExpression(const std::string& text) : input(text) {}

  void parse() { parser.oC_Expression(); }
  void lookAhead() { tokens.fill(); }

 private:
  vorn::NestingGuard guard;
  std::pmr::monotonic_buffer_resource memory;
  antlr4::ANTLRInputStream input;
  vorn::GuardedLexer lexer{&input, guard, memory};
  antlr4::CommonTokenStream tokens{&lexer};
  vorn::GuardedParser parser{&tokens, guard, memory};
};

TEST(NestingGuard, LetsMostOfTheStackBeUsed) {
  onStackOf(mebibyte, [] {
    const vorn::NestingGuard guard;
    below(830 * kibibyte, [&] { EXPECT_FALSE(refusesARule(guard)); });
    below(890 * kibibyte, [&] { EXPECT_TRUE(refusesARule(guard)); });
  });
}

TEST(NestingGuard, LooksIntoErrorsWithTwoFifthsOfTheStackInUse) {
  onStackOf(mebibyte, [] {
    const vorn::NestingGuard guard;
    below(360 * kibibyte, [&] { EXPECT_FALSE(refusesAnError(guard)); });
    below(440 * kibibyte, [&] { EXPECT_TRUE(refusesAnError(guard)); });
  });
}

TEST(NestingGuard, CountsFromWhereTheCallBegins) {
  onStackOf(mebibyte, [] {
    below(500 * kibibyte, [] {
      const vorn::NestingGuard guard;
      below(400 * kibibyte, [&] { EXPECT_FALSE(refusesARule(guard)); });
      below(460 * kibibyte, [&] { EXPECT_TRUE(refusesARule(guard)); });
    });
  });
}

TEST(NestingGuard, RefusesToBeginWithoutRoom) {
  onStackOf(256 * kibibyte, [] {
    // The C library may hand out a larger stack than was asked for.
    const std::size_t size = vorn::stackPosition() - vorn::stackEnd(vorn::stackPosition());
    below(size - 36 * kibibyte, [] { EXPECT_NO_THROW(vorn::NestingGuard()); });
    below(size - 31 * kibibyte, [] { EXPECT_THROW(vorn::NestingGuard(), std::length_error); });
  });
}

// How many rules the guard takes one level of the text for.
void expectRulesAhead(const std::string& level, std::size_t rules) {
  constexpr std::size_t fitting = 9500;  // in all, of 64 bytes each
  const std::size_t levels = fitting / rules;
  const auto refusesLevels = [&](std::size_t count) {
    GuardedExpression expression(repeated(level, count));
    return refuses([&] { expression.lookAhead(); });
  };
  onStackOf(mebibyte, [&] {
    EXPECT_FALSE(refusesLevels(levels - levels / 20)) << level;
    EXPECT_TRUE(refusesLevels(levels + levels / 20)) << level;
  });
}

TEST(GuardedLexer, CountsEachLevelAhead) {
  expectRulesAhead("(", 18);
  expectRulesAhead("[x IN ", 18);
  expectRulesAhead("CASE WHEN ", 18);
  expectRulesAhead("EXISTS { RETURN ", 24);
}

TEST(GuardedLexer, TakesAMapBehindANameForProperties) {
  expectRulesAhead("(ab {k: ", 18 + 3);
  expectRulesAhead("(a {k: ", 18 + 3);
  expectRulesAhead("(:`A` {k: ", 18 + 3);
  expectRulesAhead("({k: ", 18 + 18);
  expectRulesAhead("[x IN {k: ", 18 + 18);
}

TEST(GuardedLexer, TakesACaseForALevelWhereAnExpressionMayBegin) {
  expectRulesAhead("[a, CASE ", 18 + 18);
  expectRulesAhead("[x IN a:B | CASE ", 18 + 18);
  expectRulesAhead("[x IN []:B | CASE ", 18 + 18);
  expectRulesAhead("{a: CASE ", 18 + 18);
  expectRulesAhead("{a: b:C, d: CASE ", 18 + 18);
  expectRulesAhead("EXISTS { RETURN a, CASE ", 24 + 18);
}

TEST(GuardedLexer, TakesACaseForANameWhereOneIsExpected) {
  expectRulesAhead("(a.case, b:CASE, ", 18);
  expectRulesAhead("{case: a:CASE, case: ", 18);
  expectRulesAhead("{a: {}:CASE + ", 18);
  expectRulesAhead("EXISTS { RETURN a:CASE, ", 24);
  expectRulesAhead("EXISTS { RETURN a, b:CASE, ", 24);
  expectRulesAhead("()-[:A|CASE {b: ", 18 + 3);
  expectRulesAhead("()-[r:A|CASE {b: ", 18 + 3);
}

TEST(GuardedLexer, TakesExistsForASubqueryWhereAnExpressionMayBegin) {
  expectRulesAhead("[x IN a | EXISTS { RETURN ", 18 + 24);
  expectRulesAhead("{a: EXISTS { RETURN ", 18 + 24);
}

TEST(GuardedLexer, TakesExistsForANameWhereOneIsExpected) {
  expectRulesAhead("(a:EXISTS {b: 1, case: ", 18 + 3);
  expectRulesAhead("()-[:A|EXISTS {b: 1, case: ", 18 + 3);
}

TEST(GuardedLexer, ReadsOnBehindBracketsThatDoNotMatch) {
  for (const char* text : {")", "[):", "(]:", "CASE )", "END"}) {
    EXPECT_NO_THROW(GuardedExpression(text).lookAhead()) << text;
  }
}

TEST(GuardedParser, AsksTheGuardAtEachRule) {
  onStackOf(mebibyte, [] {
    GuardedExpression expression("a");
    below(890 * kibibyte, [&] { EXPECT_THROW(expression.parse(), std::length_error); });
  });
}

TEST(GuardedParser, AsksTheGuardAtAnError) {
  onStackOf(mebibyte, [] {
    GuardedExpression right("{a: 1}");
    GuardedExpression wrong("{a 1}");
    below(440 * kibibyte, [&] {
      EXPECT_NO_THROW(right.parse());
      EXPECT_THROW(wrong.parse(), std::length_error);
    });
  });
}

}  // namespace
