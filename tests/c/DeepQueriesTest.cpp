// A wrong query gets an error at every depth and with every size of stack.

#include <gtest/gtest.h>

#include <string>

#include "Ask.h"
#include "nesting/Shapes.h"
#include "nesting/StackedThread.h"

using namespace c_interface;

namespace {

class WrongQuery : public testing::TestWithParam<Shape> {
 protected:
  // The query with an error inside all brackets.
  static std::string query(std::size_t levels) {
    const Shape& shape = GetParam();
    return narrow(Shape{shape.name, shape.open, shape.close, "{a 1}",
                        "MATCH (a) WITH a MATCH (b) WHERE 1 = ", " RETURN 1"}
                      .nested(levels));
  }

  // How many of the queries up to this depth are told the place of their error.
  static std::size_t toldOnStackOf(std::size_t bytes, std::size_t levels) {
    std::size_t told = 0;
    onStackOf(bytes, [&] {
      for (std::size_t level = 1; level < levels; ++level) {
        const Told answer = ask(Encoding::Utf8, Kind::Columns, query(level));
        EXPECT_TRUE(answer.error == VORN_SYNTAX || answer.error == VORN_TOO_DEEP) << level;
        told += answer.line == 1 ? 1 : 0;
      }
    });
    return told;
  }
};

TEST_P(WrongQuery, IsRefusedOrToldItsPlaceAtEveryDepth) {
  EXPECT_GT(toldOnStackOf(128 * kibibyte, 80), 5U);
}

TEST_P(WrongQuery, IsRefusedOrToldItsPlaceAtEveryDepthOfTheLeastStack) {
  toldOnStackOf(48 * kibibyte, 80);
}

INSTANTIATE_TEST_SUITE_P(Any, WrongQuery, testing::ValuesIn(allShapes()),
                         testing::PrintToStringParamName());

}  // namespace
