// Tests the limit for texts that the compiled parser does not take, without parsing them.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <functional>
#include <stdexcept>
#include <string>

#include "Repeated.h"
#include "StackedThread.h"
#include "antlr/NestingLimit.h"
#include "parser/CompiledText.h"
#include "platform/StackBounds.h"

namespace {

// Runs `work` with this many more bytes of the stack in use. It must not be inlined: the limit
// depends on where its frame begins.
[[gnu::noinline]] void below(std::size_t bytes, const std::function<void()>& work) {
  auto* used = static_cast<char*>(__builtin_alloca(bytes));
  std::memset(used, 1, bytes);
  work();
  EXPECT_EQ(*used, 1);
}

[[gnu::noinline]] bool refuses(const std::string& text) {
  const CompiledText compiled(text);
  try {
    vorn::refuseTooDeep(compiled.tree().types.data(), compiled.tree().tokenCount());
    return false;
  } catch (const std::length_error&) {
    return true;
  }
}

bool refusesLevels(std::size_t levels) { return refuses(std::string(levels, '(')); }

// How many levels fit the rest of the stack.
std::size_t fittingLevels() {
  std::size_t fitting = 0;
  for (std::size_t step = 4096; step > 0; step /= 2) {
    fitting += refusesLevels(fitting + step) ? 0 : step;
  }
  return fitting;
}

TEST(NestingLimit, Lets250LevelsFitOneMebibyteAnd2000FitEight) {
  onStackOf(mebibyte, [] { EXPECT_FALSE(refusesLevels(250)); });
  onStackOf(8 * mebibyte, [] { EXPECT_FALSE(refusesLevels(2000)); });
}

TEST(NestingLimit, GrowsWithTheStack) {
  std::size_t onOne = 0;
  std::size_t onEight = 0;
  onStackOf(mebibyte, [&] { onOne = fittingLevels(); });
  onStackOf(8 * mebibyte, [&] { onEight = fittingLevels(); });
  EXPECT_LT(onOne, 300U);
  EXPECT_GT(onEight, 8 * onOne);
  EXPECT_LT(onEight, 9 * onOne);
}

TEST(NestingLimit, CountsWhatIsLeftOfTheStack) {
  onStackOf(mebibyte, [] {
    const std::size_t all = fittingLevels();
    below(500 * kibibyte, [&] {
      EXPECT_LT(fittingLevels(), all / 2 + 20);
      EXPECT_GT(fittingLevels(), all / 2 - 20);
    });
  });
}

TEST(NestingLimit, RefusesATextWithoutLevelsWhereThereIsNoRoom) {
  onStackOf(256 * kibibyte, [] {
    // The C library may give a thread a larger stack than requested.
    const std::size_t size = vorn::stackPosition() - vorn::stackEnd(vorn::stackPosition());
    below(size - 36 * kibibyte, [] { EXPECT_FALSE(refuses("a")); });
    below(size - 31 * kibibyte, [] { EXPECT_TRUE(refuses("a")); });
  });
}

// Expects that each repetition of the text leaves `levels` levels open, and that at most `inside`
// levels are open inside the last one.
void expectLevels(const std::string& text, std::size_t levels, std::size_t inside = 0) {
  onStackOf(2 * mebibyte, [&] {
    const std::size_t times = (fittingLevels() - std::max(levels, inside)) / levels + 1;
    EXPECT_FALSE(refuses(repeated(text, times))) << text;
    EXPECT_TRUE(refuses(repeated(text, times + 1))) << text;
  });
}

// Expects that no repetition of the text takes more levels than the text itself.
void expectNoLevelToStayOpen(const std::string& text) {
  onStackOf(64 * kibibyte, [&] { EXPECT_FALSE(refuses(repeated(text, 1000))) << text; });
}

TEST(NestingLimit, CountsEachBracket) {
  expectLevels("(", 1);
  expectLevels("[", 1);
  expectLevels("{a: ", 1);
  expectLevels("f(", 1);
  expectLevels("[x IN ", 1);
  expectLevels("[f(", 2);
  expectLevels("(ab {k: ", 2);
  expectLevels("(:`A` {k: ", 2);
}

TEST(NestingLimit, CountsCases) {
  expectLevels("CASE WHEN ", 1);
  expectLevels("case a WHEN ", 1);
  expectLevels("CASE (", 2);
}

TEST(NestingLimit, CountsASubqueryTwice) {
  expectLevels("EXISTS { RETURN ", 2);
  expectLevels("exists/**/{ RETURN ", 2);
  expectLevels("[x IN a | EXISTS { RETURN ", 3);
  expectLevels("{a: EXISTS { RETURN ", 3);
}

TEST(NestingLimit, CountsNoLevelThatIsClosed) {
  for (const char* text :
       {"(a) + ", "[a] + ", "{a: 1} + ", "f(a) + ", "CASE WHEN a THEN b END + ",
        "EXISTS { (a) } + ", "CASE (a) WHEN {b: [c]} THEN d END + ", "CASE ) END + "}) {
    expectNoLevelToStayOpen(text);
  }
}

TEST(NestingLimit, CountsLevelsBehindThoseThatAreClosed) {
  expectLevels("(a) + [b] + (", 1);
  expectLevels("CASE WHEN a THEN b END + CASE WHEN ", 1);
  expectLevels("[(a), EXISTS { (b) }, ", 1, 4);
}

TEST(NestingLimit, CountsACaseWhereAnExpressionMayBegin) {
  expectLevels("[a, CASE ", 2);
  expectLevels("[x IN a:B | CASE ", 2);
  expectLevels("[x IN []:B | CASE ", 2);
  expectLevels("{a: CASE ", 2);
  expectLevels("{a: b:C, d: CASE ", 2);
  expectLevels("EXISTS { RETURN a, CASE ", 3);
}

TEST(NestingLimit, TakesACaseBehindAFullStopForAName) {
  expectLevels("(a.case, ", 1);
  expectNoLevelToStayOpen("a.case + ");
  expectNoLevelToStayOpen("a. case + ");
  expectNoLevelToStayOpen("a./**/CASE + ");
  expectLevels("[a..CASE WHEN ", 2);
}

// Elsewhere a name CASE may count as a level, but only until the bracket around it closes.
TEST(NestingLimit, ForgetsANameCaseWithItsBracket) {
  expectNoLevelToStayOpen("(a:CASE) + ");
  expectNoLevelToStayOpen("(a:CASE:CASE) + ");
  expectNoLevelToStayOpen("{case: 1}.case + ");
  expectNoLevelToStayOpen("{a: 1, case: 1} + ");
  expectNoLevelToStayOpen("()-[:A|CASE]-() + ");
  expectNoLevelToStayOpen("EXISTS { (a:CASE) } + ");
  expectNoLevelToStayOpen("(a:EXISTS {b: 1, case: 1})--() + ");
}

TEST(NestingLimit, CountsWhatStandsInsideABracketWithANameCase) {
  expectLevels("(a:CASE {b: (", 4);
  expectLevels("(a.case {b: (", 3);
}

// Each of these opens a level that the name END must not seem to close.
TEST(NestingLimit, TakesNoNameEndForTheEndOfACase) {
  expectLevels("CASE a.end WHEN ", 1);
  expectLevels("CASE a. end WHEN ", 1);
  expectLevels("CASE a:END WHEN ", 1);
  expectLevels("CASE a: END WHEN ", 1);
  expectLevels("CASE {end: 1} WHEN ", 1, 2);
  expectLevels("CASE {a: 1, end: 1} WHEN ", 1, 2);
  expectLevels("CASE ()-[:A|END]-() WHEN ", 1, 2);
  expectLevels("CASE ()-[:A|:END]-() WHEN ", 1, 2);
}

TEST(NestingLimit, CountsNothingInStringsCommentsAndQuotedNames) {
  for (const char* text :
       {"'(((' + ", "\"[[[\" + ", "`{{{` + ", "/* CASE ((( */a + ", "a //((\n + "}) {
    expectNoLevelToStayOpen(text);
  }
}

TEST(NestingLimit, ReadsOnBehindBracketsThatDoNotMatch) {
  for (const char* text : {")", "[):", "(]:", "CASE )", "END", "a END ) ] }"}) {
    EXPECT_FALSE(refuses(text)) << text;
  }
  onStackOf(128 * kibibyte, [] {
    EXPECT_TRUE(refuses(")]}" + std::string(1000, '(')));
    EXPECT_FALSE(refuses(std::string(1000, ')')));
  });
}

TEST(NestingLimit, CountsTheLevelsOfATextWithoutTokens) {
  EXPECT_FALSE(refuses(""));
  EXPECT_FALSE(refuses("?"));
}

}  // namespace
