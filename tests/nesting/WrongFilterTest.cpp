// Tests how deeply a wrong filter may nest and still get a message of its error.

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "Repeated.h"
#include "Shapes.h"
#include "StackedThread.h"
#include "support/Text.h"
#include "vorn/vorn.h"

namespace {

using vorn::WideString;

// As include/vorn/vorn.h promises.
constexpr std::size_t levelsInAMebibyte = 250;

// Refusals that do not tell what is wrong with a filter.
const std::string tooDeep = "the openCypher text nests too deeply for the stack";
const std::string tooLong = "the openCypher text takes too long to be understood";

std::string messageFor(const WideString& filter) {
  try {
    vorn::ReplaceVariableNamesInPropertyFilterOCExpression(filter, {});
    return "no error";
  } catch (const std::exception& error) {
    const bool isRefusal = dynamic_cast<const std::length_error*>(&error) != nullptr;
    const std::string message = error.what();
    return isRefusal == (message == tooDeep || message == tooLong) ? message
                                                                   : "of another type: " + message;
  }
}

bool tellsThePlace(const std::string& message) { return message.rfind("line 1:", 0) == 0; }

bool isRefusal(const std::string& message) { return message == tooDeep || message == tooLong; }

// The shape with a wrong text, `core`, in its innermost level.
Shape around(const Shape& shape, const char* core) {
  return {shape.name, shape.open, shape.close, core, shape.before, shape.after};
}

std::string placeInFirstLine(std::size_t position) {
  return "line 1:" + std::to_string(position) + " ";
}

class WrongFilter : public testing::TestWithParam<Shape> {
 protected:
  static void expectMessage(std::size_t stack, std::size_t levels) {
    for (const char* core : {"?", "{a 1}", "a b"}) {
      const WideString text = around(GetParam(), core).nested(levels);
      onStackOf(stack, [&] {
        const std::string message = messageFor(text);
        EXPECT_TRUE(tellsThePlace(message)) << core << ": " << message;
      });
    }
  }
};

TEST_P(WrongFilter, OfThePromisedLevelsGetsItsMessageInOneMebibyte) {
  expectMessage(mebibyte, levelsInAMebibyte);
}

TEST_P(WrongFilter, OfEightTimesAsManyLevelsGetsItsMessageInEightMebibytes) {
  expectMessage(8 * mebibyte, 8 * levelsInAMebibyte);
}

TEST_P(WrongFilter, TellsThePlaceInsideAllBrackets) {
  const Shape& shape = GetParam();
  const WideString text = around(shape, "?").nested(levelsInAMebibyte);
  const std::size_t position = std::string(shape.open).size() * levelsInAMebibyte;
  onStackOf(mebibyte, [&] {
    EXPECT_EQ(messageFor(text), placeInFirstLine(position) + "token recognition error at: '?'");
  });
}

INSTANTIATE_TEST_SUITE_P(InPlainBrackets, WrongFilter,
                         testing::Values(Shape{"Parentheses", "(", ")", ""},
                                         Shape{"Lists", "[", "]", ""},
                                         Shape{"Maps", "{a: ", "}", ""},
                                         Shape{"Calls", "f(", ")", ""}),
                         testing::PrintToStringParamName());

class WrongText : public testing::TestWithParam<Shape> {};

// To list the expected tokens, the runtime recurses over all open rules a second time.
TEST_P(WrongText, IsRefusedOrToldWhatIsWrongAtEveryDepth) {
  const Shape shape = around(GetParam(), "{a 1}");
  onStackOf(128 * kibibyte, [&] {
    std::size_t told = 0;
    for (std::size_t levels = 1; levels < 80; ++levels) {
      const std::string message = messageFor(shape.nested(levels));
      EXPECT_TRUE(isRefusal(message) || tellsThePlace(message)) << message;
      told += tellsThePlace(message) ? 1 : 0;
    }
    EXPECT_GT(told, 5U);
  });
}

TEST_P(WrongText, IsRefusedOrToldWhatIsWrongAtEveryDepthOfTheLeastStack) {
  const Shape shape = around(GetParam(), "{a 1}");
  onStackOf(48 * kibibyte, [&] {
    for (std::size_t levels = 1; levels < 80; ++levels) {
      const std::string message = messageFor(shape.nested(levels));
      EXPECT_TRUE(isRefusal(message) || tellsThePlace(message)) << message;
    }
  });
}

TEST_P(WrongText, IsRefusedIfItNestsTooDeeplyToBeTold) {
  const Shape shape = around(GetParam(), "{a 1}");
  onStackOf(mebibyte, [&] {
    EXPECT_EQ(messageFor(shape.nested(500)), tooDeep);
    EXPECT_EQ(messageFor(shape.unbalanced(500)), tooDeep);
  });
}

INSTANTIATE_TEST_SUITE_P(Any, WrongText, testing::ValuesIn(allShapes()),
                         testing::PrintToStringParamName());

// Inside a bracket that does not close, prediction reads to the end of the text.
TEST(WrongFilterOfManyOperators, IsToldWhatIsWrongOrRefusedByALengthError) {
  const auto filter = [](std::size_t operators) {
    return wide("[x IN " + repeated("(a) + ", operators) + "?");
  };
  EXPECT_TRUE(tellsThePlace(messageFor(filter(20))));
  EXPECT_EQ(messageFor(filter(3000)), tooLong);
  EXPECT_TRUE(tellsThePlace(messageFor(filter(20))));
}

TEST(WrongFilterOfManyOperators, IsToldWhatIsWrongWhereNoBracketIsOpen) {
  for (const char* piece : {"n.a = 1 AND ", "(a) OR ", "[a] + ", "f(a) + ", "NOT ", "n:A OR "}) {
    const std::string text = repeated(piece, 3000);
    EXPECT_EQ(messageFor(wide(text + "?")),
              placeInFirstLine(text.size()) + "token recognition error at: '?'")
        << piece;
  }
}

// Expects that repeating the text in front of an error does not count as nesting.
void expectNoNesting(const std::string& piece) {
  const std::string text = repeated(piece, 300) + "a ?";
  const WideString filter = wide(text);
  onStackOf(128 * kibibyte, [&] {
    EXPECT_EQ(messageFor(filter),
              placeInFirstLine(text.size() - 1) + "token recognition error at: '?'")
        << piece;
  });
}

TEST(NestingOfAWrongFilter, IsNotThatOfBracketsThatStandSideBySide) {
  expectNoNesting("(a) + [b] + f(c) + ");
  expectNoNesting("(a:CASE) + ");
}

TEST(NestingOfAWrongFilter, IsNotThatOfCasesThatStandSideBySide) {
  expectNoNesting("CASE WHEN a THEN b END + ");
}

TEST(NestingOfAWrongFilter, IsNotThatOfPropertiesNamedCase) {
  expectNoNesting("a.case.case + ");
  expectNoNesting("a. case + ");
  expectNoNesting("{case: 1}.case + ");
}

// Each of these opens a level that the name END must not seem to close.
TEST(NestingOfAWrongFilter, IsThatOfCasesWithNamesEnd) {
  for (const char* level : {"CASE a.end WHEN ", "CASE a:END WHEN ", "CASE {end: 1} WHEN ",
                            "CASE {a: 1, end: 1} WHEN ", "CASE ()-[:A|END]-() WHEN "}) {
    const WideString text = wide("[x IN " + repeated(level, 5000) + "?");
    onStackOf(128 * kibibyte, [&] { EXPECT_EQ(messageFor(text), tooDeep) << level; });
  }
}

TEST(NestingOfAWrongFilter, IsThatOfAllLevelsAroundTheError) {
  constexpr std::size_t fitting = 150;  // alone
  const std::string ahead = "[x IN " + repeated("[", fitting) + "?" + repeated("]", fitting) + "]";
  const WideString shallow = wide(ahead);
  const WideString deep = wide(repeated("(", fitting) + ahead + repeated(")", fitting));
  onStackOf(mebibyte, [&] {
    EXPECT_TRUE(tellsThePlace(messageFor(shallow)));
    EXPECT_EQ(messageFor(deep), tooDeep);
  });
}

}  // namespace
