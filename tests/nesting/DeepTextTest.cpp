// How deep a text may nest on a given stack, and what becomes of one that nests deeper.

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "Answer.h"
#include "Shapes.h"
#include "StackedThread.h"
#include "support/Text.h"
#include "vorn/vorn.h"

namespace {

using vorn::WideString;

// As include/vorn/vorn.h promises.
constexpr std::size_t levelsInAMebibyte = 250;

WideString renamed(const WideString& expression) {
  return vorn::ReplaceVariableNamesInPropertyFilterOCExpression(expression, {});
}

void expectToFit(std::size_t stack, std::size_t levels, const Shape& shape) {
  const WideString text = shape.nested(levels);
  onStackOf(stack, [&] { EXPECT_EQ(renamed(text), text); });
}

class NestedText : public testing::TestWithParam<Shape> {};

TEST_P(NestedText, OfThePromisedLevelsFitsOneMebibyte) {
  expectToFit(mebibyte, levelsInAMebibyte, GetParam());
}

TEST_P(NestedText, OfEightTimesAsManyLevelsFitsEightMebibytes) {
  expectToFit(8 * mebibyte, 8 * levelsInAMebibyte, GetParam());
}

TEST(TextOfManyRulesForEachLevel, OfThePromisedLevelsFitsOneMebibyte) {
  expectToFit(mebibyte, levelsInAMebibyte, mostRules);
}

TEST(TextOfTwoBracketsForEachLevel, OfThePromisedLevelsFitsOneMebibyte) {
  expectToFit(mebibyte, levelsInAMebibyte, relationshipProperties);
  expectToFit(mebibyte, levelsInAMebibyte, {"SubscriptsOfCalls", "a[f(", ")]", "1"});
}

// However close to its end the stack gets.
TEST_P(NestedText, IsAnsweredOrRefusedAtEveryDepth) {
  const Shape& shape = GetParam();
  onStackOf(128 * kibibyte, [&] {
    std::size_t levels = 1;
    while (answerFor(shape.nested(levels)) == Answer::Right) {
      ++levels;
    }
    EXPECT_EQ(answerFor(shape.nested(levels)), Answer::TooDeep);
    EXPECT_GT(levels, 15);
  });
}

// Prediction needs the open rules there. On a larger stack little of it would do for each of them.
TEST(ParenthesesAroundAPattern, AreAnsweredOrRefusedUpToTheEndOfOneMebibyte) {
  const Shape shape{"", "(", ")", "(a)-[b]-(a)"};
  onStackOf(mebibyte, [&] {
    std::size_t levels = 500;
    while (answerFor(shape.nested(levels)) == Answer::Right) {
      levels += 5;
    }
    EXPECT_EQ(answerFor(shape.nested(levels)), Answer::TooDeep);
    EXPECT_GT(levels, 500);
  });
}

// To tell what is missing, the runtime recurses over all open rules once more.
TEST_P(NestedText, IsRefusedOrWrongAtEveryDepthIfAColonIsMissing) {
  const Shape& shape = GetParam();
  onStackOf(128 * kibibyte, [&] {
    std::size_t wrong = 0;
    for (std::size_t levels = 1; levels < 80; ++levels) {
      const WideString text = Shape{shape.name, shape.open, shape.close, "{a 1}"}.nested(levels);
      try {
        ADD_FAILURE() << renamed(text).size();
      } catch (const std::length_error&) {
        continue;
      } catch (const std::exception&) {
        ++wrong;
      }
    }
    EXPECT_GT(wrong, 5);
  });
}

INSTANTIATE_TEST_SUITE_P(Plain, NestedText, testing::ValuesIn(plainShapes()),
                         testing::PrintToStringParamName());

class TextWithLookahead : public testing::TestWithParam<Shape> {};

TEST_P(TextWithLookahead, OfThirtyLevelsFitsAQuarterOfAMebibyte) {
  expectToFit(256 * kibibyte, 30, GetParam());
}

INSTANTIATE_TEST_SUITE_P(Ahead, TextWithLookahead, testing::ValuesIn(lookaheadShapes()),
                         testing::PrintToStringParamName());

class TextThatNestsTooDeeply : public testing::TestWithParam<Shape> {};

TEST_P(TextThatNestsTooDeeply, IsRefusedByALengthError) {
  const WideString text = GetParam().nested(20000);
  onStackOf(128 * kibibyte, [&] {
    EXPECT_THROW(renamed(text), std::length_error);
    EXPECT_THROW(vorn::GetVariableUsagesInPropertyFilterOCExpression(text), std::length_error);
  });
}

TEST_P(TextThatNestsTooDeeply, IsRefusedBeforeItTurnsOutToBeUnbalanced) {
  const WideString text = GetParam().unbalanced(20000);
  onStackOf(128 * kibibyte, [&] { EXPECT_THROW(renamed(text), std::length_error); });
}

TEST_P(TextThatNestsTooDeeply, GivesStatusOneAndLeavesTheVectorAlone) {
  const WideString query = wide("RETURN ") + GetParam().nested(20000);
  const std::vector<std::pair<WideString, vorn::CypherType>> before{
      {wide("kept"), vorn::CypherType::Node}};
  onStackOf(128 * kibibyte, [&] {
    auto columns = before;
    EXPECT_EQ(vorn::GetOutputNamesAndTypes(query, columns), 1);
    EXPECT_EQ(columns, before);
  });
}

TEST_P(TextThatNestsTooDeeply, LeavesTheNextCallOnTheThreadAlone) {
  const WideString text = GetParam().nested(20000);
  onStackOf(128 * kibibyte, [&] {
    EXPECT_THROW(renamed(text), std::length_error);
    EXPECT_EQ(renamed(wide("((a))")), wide("((a))"));
  });
}

INSTANTIATE_TEST_SUITE_P(Any, TextThatNestsTooDeeply, testing::ValuesIn(allShapes()),
                         testing::PrintToStringParamName());

TEST(NestedPatternElements, AreRefusedInAQueryToo) {
  const WideString query =
      wide("MATCH ") + Shape{"", "(", ")", "(a)"}.nested(20000) + wide(" RETURN a");
  onStackOf(128 * kibibyte, [&] {
    std::vector<std::pair<WideString, vorn::CypherType>> columns;
    EXPECT_EQ(vorn::GetOutputNamesAndTypes(query, columns), 1);
  });
}

// A run of openings from any shapes, of which some are closed again.
WideString mixture() {
  const std::vector<Shape> shapes = allShapes();
  const auto count = *rc::gen::inRange<std::size_t>(1, 120);
  std::string text;
  std::vector<const Shape*> open;
  for (std::size_t i = 0; i < count; ++i) {
    const Shape& shape = shapes[*rc::gen::inRange<std::size_t>(0, shapes.size())];
    text += shape.open;
    open.push_back(&shape);
  }
  text += *rc::gen::element<std::string>("a", "[x IN a]", "(a)-[b]-(a)", "", "'");
  const auto closed = *rc::gen::inRange<std::size_t>(0, 2 * open.size());
  for (std::size_t i = 0; i < closed && !open.empty(); ++i) {
    text += open.back()->close;
    open.pop_back();
  }
  return wide(text);
}

RC_GTEST_PROP(MixtureOfShapes, NeverEndsTheProcess, ()) {
  const WideString text = mixture();
  const auto stack = *rc::gen::element<std::size_t>(64, 128, 192) * kibibyte;
  onStackOf(stack, [&] {
    try {
      RC_ASSERT(text.compare(0, WideString::npos, renamed(text)) >= 0);
    } catch (const std::exception&) {
      // Too deep, or wrong at its end: both are answers.
    }
  });
}

}  // namespace
