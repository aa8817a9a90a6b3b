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

[[gnu::noinline]] bool refuses(const vorn::NestingGuard& guard) {
  try {
    guard.enterRule();
    return false;
  } catch (const std::length_error&) {
    return true;
  }
}

TEST(NestingGuard, LetsTwoFifthsOfTheStackBeUsed) {
  onStackOf(mebibyte, [] {
    const vorn::NestingGuard guard;
    below(360 * kibibyte, [&] { EXPECT_FALSE(refuses(guard)); });
    below(440 * kibibyte, [&] { EXPECT_TRUE(refuses(guard)); });
  });
}

TEST(NestingGuard, CountsFromWhereTheCallBegins) {
  onStackOf(mebibyte, [] {
    below(500 * kibibyte, [] {
      const vorn::NestingGuard guard;
      below(150 * kibibyte, [&] { EXPECT_FALSE(refuses(guard)); });
      below(240 * kibibyte, [&] { EXPECT_TRUE(refuses(guard)); });
    });
  });
}

TEST(NestingGuard, RefusesToBeginWithoutRoom) {
  onStackOf(256 * kibibyte, [] {
    // The C library may hand out a larger stack than was asked for.
    const std::size_t size = vorn::stackPosition() - vorn::stackEnd(vorn::stackPosition());
    below(size - 48 * kibibyte, [] { EXPECT_NO_THROW(vorn::NestingGuard()); });
    below(size - 24 * kibibyte, [] { EXPECT_THROW(vorn::NestingGuard(), std::length_error); });
  });
}

TEST(GuardedParser, AsksTheGuardAtEachRule) {
  onStackOf(mebibyte, [] {
    vorn::NestingGuard guard;
    antlr4::ANTLRInputStream input("a");
    std::pmr::monotonic_buffer_resource memory;
    vorn::GuardedLexer lexer(&input, guard, memory);
    antlr4::CommonTokenStream tokens(&lexer);
    vorn::GuardedParser parser(&tokens, guard, memory);
    below(440 * kibibyte, [&] { EXPECT_THROW(parser.oC_Expression(), std::length_error); });
  });
}

}  // namespace
