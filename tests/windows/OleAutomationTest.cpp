// Tests that a BString's strings are those of OLE automation: each side can free the other's
// strings.

#include <gtest/gtest.h>
#include <windows.h>
// Needs windows.h before it.
#include <oleauto.h>

#include "tests/strings/Strings.h"

using namespace std::string_literals;

TEST(AStringOfOleAutomation, CanBeHeld) {
  BString text;
  text.Attach(::SysAllocStringLen(L"ab\0c", 4));
  EXPECT_EQ(utf8Of(text), "ab\0c"s);
  text.Append(text);
  EXPECT_EQ(utf8Of(text), "ab\0cab\0c"s);
}

TEST(AStringOfOleAutomation, CanBeStoredByAnotherFunction) {
  BString text = bstringOf("old");
  VARIANT number;
  VariantInit(&number);
  number.vt = VT_I4;
  number.lVal = 42;
  ASSERT_EQ(VarBstrFromI4(number.lVal, LOCALE_INVARIANT, 0, &text), S_OK);
  EXPECT_EQ(utf8Of(text), "42");
}

TEST(AStringOfOleAutomation, IsWhatABStringHandsOut) {
  BString text = bstringOf("größe 😀");
  BSTR const detached = text.Detach();
  EXPECT_EQ(::SysStringLen(detached), 8U);
  EXPECT_EQ(::SysStringByteLen(detached), 16U);
  BSTR joined = nullptr;
  ASSERT_EQ(VarBstrCat(detached, detached, &joined), S_OK);
  text.Attach(joined);
  EXPECT_EQ(utf8Of(text), "größe 😀größe 😀");
  ::SysFreeString(detached);
}

TEST(AStringOfOleAutomation, IsWhatAStringMakes) {
  BSTR const made = stringOf("made").MakeBSTR();
  EXPECT_EQ(::SysStringLen(made), 4U);
  ::SysFreeString(made);
}
