// Tests how deeply a text may nest on a given stack, and that deeper texts are refused.

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
constexpr std::size_t levelsInAMebibyte = 1000;

WideString renamed(const WideString& expression) {
  return vorn::ReplaceVariableNamesInPropertyFilterOCExpression(expression, {});
}

class NestedText : public testing::TestWithParam<Shape> {
 protected:
  static void expectToFit(std::size_t stack, std::size_t levels) {
    const WideString text = GetParam().nested(levels);
    const WideString query = wide("RETURN ") + text;
    onStackOf(stack, [&] {
      EXPECT_EQ(answerFor(text), Answer::Right);
      std::vector<std::pair<WideString, vorn::CypherType>> columns;
      EXPECT_EQ(vorn::GetOutputNamesAndTypes(query, columns), 0);
    });
  }

  // Expects an answer at every depth, also near the end of the stack.
  static void expectAnAnswerAtEveryDepth(std::size_t stack, std::size_t atLeast) {
    onStackOf(stack, [&] {
      std::size_t levels = 0;
      Answer answer = Answer::None;
      do {
        ++levels;
        answer = answerFor(GetParam().nested(levels));
      } while (answer == Answer::Right);
      EXPECT_EQ(answer, Answer::TooDeep);
      EXPECT_GT(levels, atLeast);
      for (std::size_t more = 1; more < 50; ++more) {
        EXPECT_EQ(answerFor(GetParam().nested(levels + more)), Answer::TooDeep);
      }
    });
  }
};

TEST_P(NestedText, IsAnsweredOrRefusedAtEveryDepth) {
  expectAnAnswerAtEveryDepth(128 * kibibyte, 50);
}

TEST_P(NestedText, IsAnsweredOrRefusedAtEveryDepthOfTheLeastStack) {
  expectAnAnswerAtEveryDepth(48 * kibibyte, 0);
}

INSTANTIATE_TEST_SUITE_P(Any, NestedText, testing::ValuesIn(allShapes()),
                         testing::PrintToStringParamName());

class TextOfOneBracketForEachLevel : public NestedText {};

TEST_P(TextOfOneBracketForEachLevel, OfThePromisedLevelsFitsOneMebibyte) {
  expectToFit(mebibyte, levelsInAMebibyte);
}

TEST_P(TextOfOneBracketForEachLevel, OfEightTimesAsManyLevelsFitsEightMebibytes) {
  expectToFit(8 * mebibyte, 8 * levelsInAMebibyte);
}

INSTANTIATE_TEST_SUITE_P(Any, TextOfOneBracketForEachLevel, testing::ValuesIn(oneBracketShapes()),
                         testing::PrintToStringParamName());

class TextOfTwoBracketsAtATime : public NestedText {};

TEST_P(TextOfTwoBracketsAtATime, OfThePromisedLevelsFitsOneMebibyte) {
  expectToFit(mebibyte, levelsInAMebibyte / 2);
}

TEST_P(TextOfTwoBracketsAtATime, OfEightTimesAsManyLevelsFitsEightMebibytes) {
  expectToFit(8 * mebibyte, 8 * levelsInAMebibyte / 2);
}

INSTANTIATE_TEST_SUITE_P(Any, TextOfTwoBracketsAtATime, testing::ValuesIn(twoBracketShapes()),
                         testing::PrintToStringParamName());

TEST(ParenthesesAroundAPattern, AreAnsweredOrRefusedUpToTheEndOfOneMebibyte) {
  const Shape shape{"", "(", ")", "(a)-[b]-(a)"};
  onStackOf(mebibyte, [&] {
    std::size_t levels = levelsInAMebibyte;
    while (answerFor(shape.nested(levels)) == Answer::Right) {
      levels += 5;
    }
    EXPECT_EQ(answerFor(shape.nested(levels)), Answer::TooDeep);
    EXPECT_GT(levels, levelsInAMebibyte);
  });
}

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

// Draws openings of any shapes and closes some of them.
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
