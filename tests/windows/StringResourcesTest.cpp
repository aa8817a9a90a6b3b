// Tests strings of a real resource table, in a DLL that holds nothing else.

#include <gtest/gtest.h>
#include <windows.h>

#include "tests/strings/Strings.h"

using namespace std::string_literals;

namespace {

class AStringResource : public testing::Test {
 protected:
  void SetUp() override { ASSERT_NE(module, nullptr); }
  void TearDown() override { FreeLibrary(module); }

  // The DLL lies beside this program.
  HMODULE module = LoadLibraryW(L"string_resources.dll");
};

}  // namespace

TEST_F(AStringResource, IsLoadedByItsNumber) {
  EXPECT_EQ(utf8Of(String(1, module)), "one");
  EXPECT_EQ(utf8Of(String(40, module)), "in another block of sixteen");
}

TEST_F(AStringResource, KeepsEveryCharacter) {
  EXPECT_EQ(utf8Of(String(2, module)), "größe Σ 模式 😀");
  EXPECT_EQ(utf8Of(String(3, module)), "with a zero\0inside"s);
}

TEST_F(AStringResource, IsACopyThatOutlivesItsModule) {
  HMODULE const again = LoadLibraryW(L"string_resources.dll");
  const String text(1, again);
  FreeLibrary(again);
  FreeLibrary(module);
  EXPECT_EQ(utf8Of(text), "one");
  // A zero follows the text, although the resource itself has none.
  EXPECT_EQ(text.GetAt(3), 0);
  module = LoadLibraryW(L"string_resources.dll");
}

TEST_F(AStringResource, ReplacesTheText) {
  String text = stringOf("something longer than that");
  EXPECT_TRUE(text.LoadStringW(1, module));
  EXPECT_EQ(utf8Of(text), "one");
}

TEST_F(AStringResource, ThatIsMissingLeavesNoText) {
  EXPECT_TRUE(String(4, module).IsEmpty());
  EXPECT_TRUE(String(1000, module).IsEmpty());
  EXPECT_TRUE(String(1, GetModuleHandleW(nullptr)).IsEmpty());
  String text = stringOf("old");
  EXPECT_FALSE(text.LoadStringW(4, module));
  EXPECT_TRUE(text.IsEmpty());
}
