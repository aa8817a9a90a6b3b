#include <gtest/gtest.h>

#include <limits>

#include "Strings.h"

using namespace std::string_literals;

namespace {

constexpr std::int32_t sOk = 0;
constexpr std::int32_t sFalse = 1;
constexpr auto eOutOfMemory = static_cast<std::int32_t>(0x8007000E);

// Expects that the action reports this status and leaves both a text and a null as they are.
template <typename Action>
void expectNoChange(std::int32_t status, Action action) {
  BString text = bstringOf("ab");
  const vorn::WideChar* const held = pointerIn(text);
  EXPECT_EQ(action(text), status);
  EXPECT_EQ(pointerIn(text), held);
  EXPECT_EQ(utf8Of(text), "ab");

  BString null;
  EXPECT_EQ(action(null), status);
  EXPECT_TRUE(null == nullptr);
}

}  // namespace

TEST(AppendingToABString, AddsTheFirstCharactersOfAText) {
  BString text = bstringOf("ab");
  EXPECT_EQ(text.Append(wide("cdef").c_str(), 2), sOk);
  EXPECT_EQ(utf8Of(text), "abcd");
  EXPECT_EQ(header(pointerIn(text)), 8U);
  EXPECT_EQ(pointerIn(text)[4], 0);
}

TEST(AppendingToABString, StartsFromNullOrEmptyAlike) {
  BString null;
  EXPECT_EQ(null.Append(wide("ab").c_str(), 2), sOk);
  EXPECT_EQ(utf8Of(null), "ab");
  BString empty(0L);
  EXPECT_EQ(empty.Append(wide("ab").c_str(), 2), sOk);
  EXPECT_EQ(utf8Of(empty), "ab");
}

TEST(AppendingToABString, CopiesZerosToo) {
  BString text = bstringOf("a\0"s);
  EXPECT_EQ(text.Append(wide("b\0c"s).c_str(), 3), sOk);
  EXPECT_EQ(utf8Of(text), "a\0b\0c"s);
}

TEST(AppendingToABString, AddsUpToTheZeroWhenNoLengthIsGiven) {
  BString text = bstringOf("ab");
  EXPECT_EQ(text.Append(wide("cd\0e"s).c_str()), sOk);
  EXPECT_EQ(utf8Of(text), "abcd");
}

TEST(AppendingToABString, AddsAllOfAnother) {
  BString text = bstringOf("ab");
  EXPECT_EQ(text.Append(bstringOf("c\0d"s)), sOk);
  EXPECT_EQ(utf8Of(text), "abc\0d"s);
}

TEST(AppendingToABString, AddsAllOfABstrThatStaysTheCallers) {
  BString text = bstringOf("ab");
  const BString other = bstringOf("c\0d"s);
  EXPECT_EQ(text.AppendBSTR(pointerIn(other)), sOk);
  EXPECT_EQ(utf8Of(text), "abc\0d"s);
  EXPECT_EQ(utf8Of(other), "c\0d"s);
}

TEST(AppendingToABString, ByOperatorAddsAllAndReturnsTheObject) {
  BString text = bstringOf("ab");
  BString& result = (text += bstringOf("c\0d"s));
  EXPECT_EQ(std::addressof(result), std::addressof(text));
  EXPECT_EQ(utf8Of(text), "abc\0d"s);
  text += BString();
  EXPECT_EQ(utf8Of(text), "abc\0d"s);
}

TEST(AppendingToABString, TakesItsOwnTextOrAPartOfIt) {
  BString text = bstringOf("ab");
  EXPECT_EQ(text.Append(text), sOk);
  EXPECT_EQ(utf8Of(text), "abab");
  EXPECT_EQ(text.Append(pointerIn(text) + 1, 2), sOk);
  EXPECT_EQ(utf8Of(text), "ababba");
  EXPECT_EQ(text.Append(pointerIn(text)), sOk);
  EXPECT_EQ(text.AppendBSTR(pointerIn(text)), sOk);
  text += text;
  EXPECT_EQ(text.GetLength(), 48U);
}

TEST(AppendingToABString, NothingReportsSoAndChangesNothing) {
  expectNoChange(sFalse, [](BString& text) { return text.Append(wide("c").c_str(), 0); });
  expectNoChange(sFalse, [](BString& text) { return text.Append(nullptr, 1); });
  expectNoChange(sFalse, [](BString& text) { return text.Append(nullptr, -1); });
  expectNoChange(sFalse, [](BString& text) { return text.Append(BString()); });
  expectNoChange(sFalse, [](BString& text) { return text.Append(BString(0L)); });
  expectNoChange(sFalse, [](BString& text) {
    return text.Append(static_cast<const vorn::WideChar*>(nullptr));
  });
  expectNoChange(sFalse, [](BString& text) { return text.Append(wide("").c_str()); });
  expectNoChange(sFalse, [](BString& text) { return text.AppendBSTR(nullptr); });
}

TEST(AppendingToABString, RefusesANegativeCountAndChangesNothing) {
  expectNoChange(eOutOfMemory, [](BString& text) { return text.Append(wide("c").c_str(), -1); });
  expectNoChange(eOutOfMemory, [](BString& text) {
    return text.Append(wide("c").c_str(), std::numeric_limits<int>::min());
  });
}

TEST(AppendingToABString, RefusesATotalThatDoesNotFitAndChangesNothing) {
  expectNoChange(eOutOfMemory, [](BString& text) {
    return text.Append(wide("c").c_str(), std::numeric_limits<int>::max());
  });
}
