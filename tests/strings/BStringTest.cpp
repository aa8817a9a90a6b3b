#include <gtest/gtest.h>

#include <limits>
#include <utility>

#include "Strings.h"
#include "vorn/strings/BString.h"

using namespace std::string_literals;

TEST(ABString, IsNullByDefault) {
  const BString null;
  EXPECT_EQ(pointerIn(null), nullptr);
  EXPECT_TRUE(null == nullptr);
}

TEST(ABString, OfALengthHasThatManyCharactersAndAZeroBehindThem) {
  BString made(3L);
  EXPECT_EQ(made.GetLength(), 3U);
  EXPECT_EQ(header(pointerIn(made)), 6U);
  BSTR characters = pointerIn(made);
  EXPECT_EQ(characters[3], 0);
  characters[0] = 'a';
  characters[1] = 0;
  characters[2] = 'c';
  EXPECT_EQ(utf8Of(made), "a\0c"s);
}

TEST(ABString, OfLengthZeroIsEmptyAndNotNull) {
  const BString made(0L);
  EXPECT_FALSE(made == nullptr);
  EXPECT_TRUE(made.IsEmpty());
  EXPECT_EQ(pointerIn(made)[0], 0);
}

TEST(ABString, OfALengthThatDoesNotFitIsNull) {
  EXPECT_TRUE(BString(-1L) == nullptr);
  EXPECT_TRUE(BString(std::numeric_limits<long>::min()) == nullptr);
  EXPECT_TRUE(BString(std::numeric_limits<long>::max()) == nullptr);
  EXPECT_TRUE(BString(0x7FFFFFFFL) == nullptr);
}

TEST(ABString, CopiesTheStringItIsMadeOf) {
  String source = stringOf("ab");
  source.ConcatImpl(wide("").c_str(), 1);
  const BString made(source);
  EXPECT_NE(pointerIn(made), pointerIn(source));
  EXPECT_EQ(utf8Of(made), "ab\0"s);
  EXPECT_FALSE(BString(String()) == nullptr);
}

TEST(ABString, CopiesTheNarrowTextItIsMadeOf) {
  EXPECT_EQ(utf8Of(BString("plain", 0)), "plain");
  EXPECT_FALSE(BString("", 0) == nullptr);
  EXPECT_TRUE(BString(nullptr, 0) == nullptr);
}

TEST(MovingABString, TakesTheStringAndLeavesNull) {
  BString source = bstringOf("abc");
  BSTR const string = pointerIn(source);
  const BString target(std::move(source));
  EXPECT_EQ(pointerIn(target), string);
  EXPECT_TRUE(source == nullptr);  // NOLINT(bugprone-use-after-move)
}

TEST(MovingABString, ByAssignmentTakesTheStringAndLeavesNull) {
  BString source = bstringOf("abc");
  BString target = bstringOf("old");
  BSTR const string = pointerIn(source);
  BString& result = (target = std::move(source));
  EXPECT_EQ(std::addressof(result), std::addressof(target));
  EXPECT_EQ(pointerIn(target), string);
  EXPECT_TRUE(source == nullptr);  // NOLINT(bugprone-use-after-move)
}

TEST(MovingABString, OntoItselfChangesNothing) {
  BString text = bstringOf("abc");
  BString& same = text;
  text = std::move(same);
  EXPECT_EQ(utf8Of(text), "abc");
}

TEST(MovingABString, OntoOneThatHoldsTheSameStringChangesNeither) {
  BString first = bstringOf("abc");
  BString second;
  second.Attach(pointerIn(first));
  second = std::move(first);
  EXPECT_EQ(pointerIn(first), pointerIn(second));  // NOLINT(bugprone-use-after-move)
  EXPECT_EQ(utf8Of(second), "abc");
  second.Detach();
}

TEST(TheAddressOfABString, IsThatOfANullToBeFilled) {
  BString text = bstringOf("old");
  BSTR* const place = &text;
  EXPECT_EQ(static_cast<void*>(place), static_cast<void*>(std::addressof(text)));
  EXPECT_EQ(*place, nullptr);
  EXPECT_TRUE(text == nullptr);
  *place = bstringOf("new").Detach();
  EXPECT_EQ(utf8Of(text), "new");
}

TEST(ABString, ConvertsToAViewOfAllCharacters) {
  EXPECT_EQ(utf8Of(bstringOf("a\0b"s)), "a\0b"s);
  const BString null;
  const WideView nowhere = null;
  EXPECT_EQ(nowhere.data(), nullptr);
  EXPECT_EQ(nowhere.size(), 0U);
  const BString empty(0L);
  const WideView nothing = empty;
  EXPECT_EQ(nothing.data(), pointerIn(empty));
  EXPECT_EQ(nothing.size(), 0U);
}

TEST(ABString, CountsCodeUnitsAndTakesNullForEmpty) {
  EXPECT_EQ(BString().GetLength(), 0U);
  EXPECT_TRUE(BString().IsEmpty());
  EXPECT_EQ(bstringOf("a\0\U0001F600"s).GetLength(), 4U);
  EXPECT_FALSE(bstringOf("\0"s).IsEmpty());
}

TEST(AttachingABstr, HoldsIt) {
  BString text = bstringOf("old");
  BSTR const other = bstringOf("new").Detach();
  text.Attach(other);
  EXPECT_EQ(pointerIn(text), other);
  text.Attach(static_cast<BSTR>(nullptr));
  EXPECT_TRUE(text == nullptr);
}

TEST(AttachingABstr, ThatIsHeldAlreadyChangesNothing) {
  BString text = bstringOf("abc");
  text.Attach(pointerIn(text));
  EXPECT_EQ(utf8Of(text), "abc");
}

TEST(AttachingABString, TakesItsStringAndLeavesItNull) {
  BString text = bstringOf("old");
  BString other = bstringOf("new");
  BSTR const string = pointerIn(other);
  text.Attach(other);
  EXPECT_EQ(pointerIn(text), string);
  EXPECT_TRUE(other == nullptr);
  text.Attach(other);
  EXPECT_TRUE(text == nullptr);
}

TEST(AttachingABString, ToItselfLeavesItUnchanged) {
  BString text = bstringOf("abc");
  text.Attach(text);
  EXPECT_EQ(utf8Of(text), "abc");
}

TEST(DetachingABString, GivesTheStringAndLeavesNull) {
  BString text = bstringOf("abc");
  BSTR const held = pointerIn(text);
  BSTR const detached = text.Detach();
  EXPECT_EQ(detached, held);
  EXPECT_TRUE(text == nullptr);
  EXPECT_EQ(text.Detach(), nullptr);
  text.Attach(detached);
}
