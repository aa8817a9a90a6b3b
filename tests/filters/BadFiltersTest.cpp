#include <gtest/gtest.h>

#include "support/Filters.h"

using vorn::WideChar;
using vorn::WideString;

namespace {

const WideString loneSurrogate(1, static_cast<WideChar>(0xDFFF));

TEST(BadFilters, AreSyntaxErrorsInBothFunctions) {
  for (const char* filter : {"", " ", " n", "\nn", "/**/n", "=", "n.", "n.a = ", "(n", "[1, 2",
                             "'open", "?", "n IS", "MATCH (n) RETURN n", ";", "`"}) {
    EXPECT_TRUE(isSyntaxError(failureOfUsages(filter))) << filter;
    EXPECT_EQ(failureOfUsages(filter), failureOfRenaming(filter, {})) << filter;
  }
}

TEST(BadFilters, TellWhereTheErrorIs) {
  EXPECT_EQ(failureOfUsages("n.a = ?").message.rfind("line 1:6 ", 0), 0U);
  EXPECT_EQ(failureOfUsages("'😀' +\n 名前 ~").message.rfind("line 2:4 ", 0), 0U);
  EXPECT_EQ(failureOfUsages("").message.rfind("line 1:0 ", 0), 0U);
}

TEST(BadFilters, WithAnUnpairedSurrogateFail) {
  const auto usages = [](const WideString& filter) {
    return failureOf([&] { vorn::GetVariableUsagesInPropertyFilterOCExpression(filter); });
  };
  const auto renaming = [](const WideString& filter, const WideString& oldName,
                           const WideString& newName) {
    return failureOf([&] {
      vorn::ReplaceVariableNamesInPropertyFilterOCExpression(filter, {{oldName, newName}});
    });
  };
  const WideString n = wide("n");
  for (const Failure& failure :
       {usages(n + loneSurrogate), renaming(n + loneSurrogate, n, n), renaming(n, loneSurrogate, n),
        renaming(n, n, loneSurrogate), renaming(wide("1"), n, loneSurrogate)}) {
    EXPECT_EQ(failure.kind, Failure::Kind::other);
    EXPECT_FALSE(isSyntaxError(failure)) << failure;
    EXPECT_FALSE(failure.message.empty());
  }
}

TEST(BadFilters, WithZeroCharactersAreReadToTheirEnd) {
  using namespace std::string_literals;
  EXPECT_TRUE(isSyntaxError(failureOfUsages("n\0"s)));
  EXPECT_EQ(renamed("`a\0b`.c"s, {{"a\0b"s, "x\0y"s}}), "`x\0y`.c"s);
}

TEST(BadFilters, AreNoDangerToTheNextCall) {
  EXPECT_TRUE(isSyntaxError(failureOfUsages("n.")));
  EXPECT_EQ(failureOfUsages("[x IN n | x]"), forbidden("OC_ListComprehension"));
  EXPECT_EQ(renamed("n", {{"n", "m"}}), "`m`");
}

}  // namespace
