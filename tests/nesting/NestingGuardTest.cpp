// The guard itself, asked at places of the stack that a test goes to without any text.

#include <ANTLRInputStream.h>
#include <CommonTokenStream.h>
#include <gtest/gtest.h>

#include <cstring>
#include <functional>
#include <memory_resource>
#include <stdexcept>

#include "GuardedRecognisers.h"
#include "NestingGuard.h"
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
  explicit GuardedExpression(const char* text) : input(text) {}

  void parse() { parser.oC_Expression(); }

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
