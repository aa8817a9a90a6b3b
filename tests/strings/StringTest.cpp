#include <gtest/gtest.h>

#include <limits>
#include <new>
#include <stdexcept>
#include <utility>

#include "PrivateMembers.h"
#include "Strings.h"
#include "vorn/strings/String.h"

using namespace std::string_literals;

namespace {

constexpr int notComparable = 2147483647;

// Four characters, of which the third is zero.
String withZeroInside() {
  String text = stringOf("ab");
  text.ConcatImpl(wide("").c_str(), 1);
  text.ConcatImpl(wide("d").c_str(), 1);
  return text;
}

}  // namespace

TEST(AString, IsAPointerToItsCharactersBehindTheirLengthInBytes) {
  const String text = stringOf("abc");
  EXPECT_EQ(pointerIn(text), static_cast<const vorn::WideChar*>(text));
  EXPECT_EQ(header(text), 6U);
  EXPECT_EQ(vorn::WideString(text), wide("abc"));
}

TEST(AString, IsEmptyByDefault) {
  const String text;
  ASSERT_NE(pointerIn(text), nullptr);
  EXPECT_EQ(header(text), 0U);
  EXPECT_EQ(text.GetAt(0), 0);
}

TEST(AString, CopiesTheTextItIsMadeOf) {
  vorn::WideString source = wide("a\u00E4\u20AC\U0001F600");
  const String text(source.c_str());
  source.assign(source.size(), 'x');
  EXPECT_EQ(utf8Of(text), "a\u00E4\u20AC\U0001F600");
}

TEST(AString, OfANullPointerIsEmpty) {
  const String text(nullptr);
  EXPECT_NE(pointerIn(text), nullptr);
  EXPECT_TRUE(text.IsEmpty());
}

TEST(AString, WithoutSuchAResourceIsEmpty) {
  const String text(4711, nullptr);
  ASSERT_NE(pointerIn(text), nullptr);
  EXPECT_EQ(text.GetLength(), 0U);

  String loaded = stringOf("before");
  EXPECT_FALSE(loaded.LoadStringW(4711, nullptr));
  EXPECT_TRUE(loaded.IsEmpty());
}

TEST(MovingAString, TakesTheBufferAndLeavesNull) {
  String source = stringOf("abc");
  const vorn::WideChar* const buffer = source;
  const String target(std::move(source));
  EXPECT_EQ(pointerIn(target), buffer);
  EXPECT_EQ(pointerIn(source), nullptr);  // NOLINT(bugprone-use-after-move)
  EXPECT_EQ(utf8Of(target), "abc");
}

TEST(MovingAString, ByAssignmentSwapsTheBuffers) {
  String left = stringOf("left");
  String right = stringOf("right");
  const vorn::WideChar* const leftBuffer = left;
  const vorn::WideChar* const rightBuffer = right;
  String& result = (left = std::move(right));
  EXPECT_EQ(&result, &left);
  EXPECT_EQ(pointerIn(left), rightBuffer);
  EXPECT_EQ(pointerIn(right), leftBuffer);  // NOLINT(bugprone-use-after-move)
}

TEST(MovingAString, OntoItselfChangesNothing) {
  String text = stringOf("abc");
  String& same = text;
  const vorn::WideChar* const buffer = text;
  text = std::move(same);
  EXPECT_EQ(pointerIn(text), buffer);
  EXPECT_EQ(utf8Of(text), "abc");
}

TEST(MovingAString, LeavesAnObjectThatCanBeFilledAgain) {
  String emptied = stringOf("abc");
  String assigned = stringOf("abc");
  const String first(std::move(emptied));
  const String second(std::move(assigned));
  emptied.Empty();             // NOLINT(bugprone-use-after-move)
  assigned = stringOf("def");  // NOLINT(bugprone-use-after-move)
  EXPECT_TRUE(emptied.IsEmpty());
  EXPECT_EQ(utf8Of(assigned), "def");
}

TEST(AString, ConvertsToAViewOfAllCharacters) {
  EXPECT_EQ(utf8Of(withZeroInside()), "ab\0d"s);
  EXPECT_EQ(utf8Of(String()), "");
}

TEST(AString, GivesTheCodeUnitAtAPlaceAndTheZeroBehindTheLast) {
  const String text = stringOf("a\U0001F600");
  EXPECT_EQ(text.GetAt(0), 'a');
  EXPECT_EQ(text.GetAt(1), 0xD83D);
  EXPECT_EQ(text.GetAt(2), 0xDE00);
  EXPECT_EQ(text.GetAt(3), 0);
}

TEST(AString, CountsCodeUnitsAndNotTheZeroBehindThem) {
  EXPECT_EQ(String().GetLength(), 0U);
  EXPECT_EQ(stringOf("a\u00E4\u20AC\U0001F600").GetLength(), 5U);
  EXPECT_EQ(withZeroInside().GetLength(), 4U);
}

TEST(AString, IsEmptyWhenItsHeaderIsBelowTwoBytes) {
  String text = stringOf("ab");
  auto* const lengthInBytes = reinterpret_cast<std::uint32_t*>(pointerIn(text)) - 1;
  *lengthInBytes = 2;
  EXPECT_FALSE(text.IsEmpty());
  *lengthInBytes = 1;
  EXPECT_TRUE(text.IsEmpty());
  EXPECT_EQ(text.GetLength(), 0U);
  *lengthInBytes = 0;
  EXPECT_TRUE(text.IsEmpty());
}

TEST(AString, CanBeEmptied) {
  String text = stringOf("abc");
  text.Empty();
  ASSERT_NE(pointerIn(text), nullptr);
  EXPECT_EQ(header(text), 0U);
  EXPECT_EQ(text.GetAt(0), 0);
}

TEST(SettingTheLength, WritesTheHeaderAndTouchesNoCharacter) {
  String text = stringOf("abc");
  setLength(text, 1);
  EXPECT_EQ(header(text), 2U);
  EXPECT_EQ(utf8Of(text), "a");
  setLength(text, 3);
  EXPECT_EQ(header(text), 6U);
  EXPECT_EQ(utf8Of(text), "abc");
}

TEST(ConcatenatingToAString, AppendsAndReturnsTheObject) {
  String text = stringOf("ab");
  const String& result = text.ConcatImpl(wide("cde").c_str(), 3);
  EXPECT_EQ(&result, &text);
  EXPECT_EQ(utf8Of(text), "abcde");
  EXPECT_EQ(text.GetAt(5), 0);
}

TEST(ConcatenatingToAString, DoesNothingForLengthZero) {
  String text = stringOf("ab");
  const vorn::WideChar* const buffer = text;
  EXPECT_EQ(&text.ConcatImpl(wide("cde").c_str(), 0), &text);
  EXPECT_EQ(&text.ConcatImpl(nullptr, 0), &text);
  EXPECT_EQ(pointerIn(text), buffer);
  EXPECT_EQ(utf8Of(text), "ab");
}

TEST(ConcatenatingToAString, CopiesUpToTheZeroButTrustsTheLength) {
  String text = stringOf("ab");
  text.ConcatImpl(wide("cd").c_str(), 5);
  EXPECT_EQ(utf8Of(text), "abcd\0\0\0"s);
  text.ConcatImpl(wide("e\0f"s).c_str(), 1);
  EXPECT_EQ(utf8Of(text), "abcd\0\0\0e"s);
}

TEST(ConcatenatingToAString, TakesItsOwnTextOrAPartOfIt) {
  String text = stringOf("abc");
  text.ConcatImpl(text, 3);
  EXPECT_EQ(utf8Of(text), "abcabc");
  text.ConcatImpl(static_cast<const vorn::WideChar*>(text) + 4, 2);
  EXPECT_EQ(utf8Of(text), "abcabcbc");
}

TEST(ConcatenatingToAString, KeepsTheTextThroughManySmallSteps) {
  String text;
  std::string expected;
  for (int i = 0; i < 1000; ++i) {
    const std::string piece = std::to_string(i);
    text.ConcatImpl(wide(piece).c_str(), static_cast<unsigned long>(piece.size()));
    expected += piece;
    ASSERT_EQ(text.GetLength(), expected.size());
  }
  EXPECT_EQ(utf8Of(text), expected);
}

TEST(ConcatenatingToAString, RefusesALengthThatDoesNotFitAndChangesNothing) {
  String text = stringOf("ab");
  EXPECT_THROW(text.ConcatImpl(wide("c").c_str(), 0x7FFFFFFE), std::length_error);
  EXPECT_THROW(text.ConcatImpl(wide("c").c_str(), std::numeric_limits<unsigned long>::max()),
               std::length_error);
  EXPECT_EQ(utf8Of(text), "ab");
}

TEST(ComparingAStringWithoutCase, TakesLettersOfBothCasesForEqual) {
  const String text = stringOf("Vorn Lib 9_x");
  EXPECT_EQ(text.CompareNoCase(wide("vORN lIB 9_X").c_str()), 0);
  EXPECT_EQ(String().CompareNoCase(wide("").c_str()), 0);
}

TEST(ComparingAStringWithoutCase, OrdersByTheLowerCaseCharacters) {
  EXPECT_LT(stringOf("ABC").CompareNoCase(wide("abd").c_str()), 0);
  EXPECT_GT(stringOf("abd").CompareNoCase(wide("ABC").c_str()), 0);
  EXPECT_LT(stringOf("ab").CompareNoCase(wide("ABC").c_str()), 0);
  // '_' stands between the upper and the lower case letters.
  EXPECT_GT(stringOf("Z").CompareNoCase(wide("_").c_str()), 0);
}

TEST(ComparingAStringWithoutCase, GivesTheGreatestNumberWhenASideIsNull) {
  String text = stringOf("abc");
  EXPECT_EQ(text.CompareNoCase(nullptr), notComparable);
  EXPECT_EQ(String().CompareNoCase(nullptr), notComparable);
  const String taken(std::move(text));
  EXPECT_EQ(text.CompareNoCase(wide("abc").c_str()),  // NOLINT(bugprone-use-after-move)
            notComparable);
  EXPECT_EQ(text.CompareNoCase(nullptr), notComparable);
}

TEST(ComparingAString, TellsCasesApartAndOrdersByCodeUnits) {
  EXPECT_EQ(stringOf("abc").Compare(wide("abc").c_str()), 0);
  EXPECT_LT(stringOf("ABC").Compare(wide("abc").c_str()), 0);
  EXPECT_GT(stringOf("abc").Compare(wide("ab").c_str()), 0);
  EXPECT_LT(stringOf("ab").Compare(wide("abc").c_str()), 0);
  // By code points the order would be the opposite one.
  EXPECT_LT(stringOf("\U0001F600").Compare(wide("\uFF5E").c_str()), 0);
  // Code units compare as unsigned numbers.
  EXPECT_GT(stringOf("\uFFFD").Compare(wide("a").c_str()), 0);
}

TEST(ComparingAString, StopsAtTheFirstZero) {
  EXPECT_EQ(withZeroInside().Compare(wide("ab").c_str()), 0);
  EXPECT_EQ(withZeroInside().CompareNoCase(wide("AB").c_str()), 0);
}

TEST(TheBstrOfAString, HasAllCharactersAndIsTheCallers) {
  BString owner;
  owner.Attach(withZeroInside().MakeBSTR());
  EXPECT_EQ(utf8Of(owner), "ab\0d"s);
}

TEST(TheBstrOfAString, IsEmptyAndNotNullForAnEmptyOne) {
  BString owner;
  owner.Attach(String().MakeBSTR());
  EXPECT_FALSE(owner == nullptr);
  EXPECT_EQ(owner.GetLength(), 0U);
}
