#include <gtest/gtest.h>

#include "Strings.h"

// The program has another class String, whose members must not take the place of the library's
// where the library itself calls them.
TEST(BesideAnotherString, TheLibraryCallsItsOwnMembers) {
  const String text = stringOf("abc");
  EXPECT_EQ(utf8Of(BString(text)), "abc");
  EXPECT_EQ(utf8Of(text), "abc");
}
