#include <gtest/gtest.h>

#include "Strings.h"

// The program has another class String. The library must still call the members of its own class.
TEST(BesideAnotherString, TheLibraryCallsItsOwnMembers) {
  const String text = stringOf("abc");
  EXPECT_EQ(utf8Of(BString(text)), "abc");
  EXPECT_EQ(utf8Of(text), "abc");
}
