#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "Strings.h"

using namespace std::string_literals;

namespace {

// One side of a comparison: a text or null.
using Side = std::optional<std::string>;

// A side in all forms that a BString can be compared with.
class Operand {
 public:
  explicit Operand(const Side& side)
      : isNull(!side), narrowText(side.value_or("")), wideText(::wide(narrowText)) {}

  BString bstring() const { return isNull ? BString() : bstringOf(narrowText); }
  vorn::WideChar* wide() { return isNull ? nullptr : wideText.data(); }
  const vorn::WideChar* readOnlyWide() { return wide(); }
  char* narrow() { return isNull ? nullptr : narrowText.data(); }
  const char* readOnlyNarrow() { return narrow(); }

 private:
  bool isNull;
  std::string narrowText;
  vorn::WideString wideText;
};

// Checks all pairs of null, the empty text and others. The sides compare as BStrings should.
template <typename Check>
void forAllPairs(Check check) {
  const std::vector<Side> sides{std::nullopt, "", "A", "a", "ab", "b"};
  for (const Side& left : sides) {
    for (const Side& right : sides) {
      SCOPED_TRACE(left.value_or("null") + " and " + right.value_or("null"));
      Operand operand(right);
      check(left, Operand(left).bstring(), right, operand);
    }
  }
}

}  // namespace

TEST(ComparingABString, IsEqualToTheSameTextAndNullToNullOnly) {
  forAllPairs([](const Side& left, const BString& text, const Side& right, Operand& operand) {
    EXPECT_EQ(text == operand.bstring(), left == right);
    EXPECT_EQ(text == operand.wide(), left == right);
    EXPECT_EQ(text == operand.readOnlyWide(), left == right);
    EXPECT_EQ(text == operand.readOnlyNarrow(), left == right);
  });
}

TEST(ComparingABString, IsUnequalWhereItIsNotEqual) {
  forAllPairs([](const Side& left, const BString& text, const Side& right, Operand& operand) {
    EXPECT_EQ(text != operand.bstring(), left != right);
    EXPECT_EQ(text != operand.wide(), left != right);
    EXPECT_EQ(text != operand.readOnlyWide(), left != right);
    EXPECT_EQ(text != operand.readOnlyNarrow(), left != right);
  });
}

TEST(ComparingABString, PutsNullBeforeEveryTextAndNothingBeforeNull) {
  forAllPairs([](const Side& left, const BString& text, const Side& right, Operand& operand) {
    EXPECT_EQ(text < operand.bstring(), left < right);
    EXPECT_EQ(text < operand.wide(), left < right);
    EXPECT_EQ(text < operand.readOnlyWide(), left < right);
    EXPECT_EQ(text < operand.narrow(), left < right);
    EXPECT_EQ(text < operand.readOnlyNarrow(), left < right);
  });
}

TEST(ComparingABString, WithAStringComparesTheirTexts) {
  EXPECT_TRUE(bstringOf("abc") == stringOf("abc"));
  EXPECT_FALSE(bstringOf("abc") != stringOf("abc"));
  EXPECT_FALSE(bstringOf("abc") == stringOf("ABC"));
  EXPECT_TRUE(bstringOf("abc") != stringOf("ABC"));
  EXPECT_FALSE(BString() == String());
  EXPECT_TRUE(BString() != String());
  EXPECT_TRUE(BString(0L) == String());
}

TEST(ComparingABString, WithAStringWithoutBufferComparesWithNull) {
  String source = stringOf("abc");
  const String taken(std::move(source));
  EXPECT_TRUE(BString() == source);  // NOLINT(bugprone-use-after-move)
  EXPECT_TRUE(BString(0L) != source);
}

TEST(ComparingABString, WithNullAsksWhetherItIsNull) {
  EXPECT_TRUE(BString() == nullptr);
  EXPECT_FALSE(BString() != nullptr);
  EXPECT_FALSE(BString(0L) == nullptr);
  EXPECT_TRUE(BString(0L) != nullptr);
}

TEST(ComparingABString, StopsAtTheFirstZero) {
  const BString text = bstringOf("a\0b"s);
  EXPECT_TRUE(text == bstringOf("a\0c"s));
  EXPECT_TRUE(text == bstringOf("a"));
  EXPECT_TRUE(text == "a");
  EXPECT_TRUE(bstringOf("\0b"s) == wide("").c_str());
  EXPECT_FALSE(text < bstringOf("a\0c"s));
}

TEST(ComparingABString, OrdersByCodeUnitsWithoutSign) {
  // By code points the order would be the opposite one.
  EXPECT_TRUE(bstringOf("\U0001F600") < bstringOf("\uFF5E"));
  EXPECT_FALSE(bstringOf("\uFFFD") < bstringOf("a"));
}
