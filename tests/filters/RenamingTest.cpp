#include <gtest/gtest.h>

#include "support/Filters.h"

using vorn::WideString;

namespace {

const Renames nToM{{"n", "m"}};

TEST(Renaming, WithAnEmptyMapReturnsTheExpression) {
  EXPECT_EQ(renamed("`n`.a  =  0x1F aNd /* c */ n.b", {}), "`n`.a  =  0x1F aNd /* c */ n.b");
}

TEST(Renaming, EmitsTheNewNameBackQuoted) {
  EXPECT_EQ(renamed("n.name = 1", nToM), "`m`.name = 1");
}

TEST(Renaming, FindsAVariableWrittenEitherWay) {
  EXPECT_EQ(renamed("n.a = 1 AND `n`.b = 2", nToM), "`m`.a = 1 AND `m`.b = 2");
  EXPECT_EQ(renamed("n.a = 1 AND `n`.b = 2", {{"`n`", "m"}}), "`m`.a = 1 AND `m`.b = 2");
}

TEST(Renaming, LeavesPropertyKeysAlone) { EXPECT_EQ(renamed("n.n = 1", nToM), "`m`.n = 1"); }

TEST(Renaming, LeavesLabelsAlone) { EXPECT_EQ(renamed("n:n", nToM), "`m`:n"); }

TEST(Renaming, LeavesParametersAlone) { EXPECT_EQ(renamed("$n = n", nToM), "$n = `m`"); }

TEST(Renaming, LeavesFunctionNamesMapKeysAndStringsAlone) {
  EXPECT_EQ(renamed("n(n) = n.n(n) + {n: n} + 'n' + \"n\" /* n */", nToM),
            "n(`m`) = n.n(`m`) + {n: `m`} + 'n' + \"n\"");
  EXPECT_EQ(renamed("'n' /* n */ = n", nToM), "'n' /* n */ = `m`");
}

TEST(Renaming, LeavesRelationshipTypesAlone) {
  EXPECT_EQ(renamed("(n)-[n:n]->(:n {n: n})", nToM), "(`m`)-[`m`:n]->(:n {n: `m`})");
}

// Only the search for usages validates.
TEST(Renaming, DoesNotValidate) {
  EXPECT_EQ(renamed("[x IN n.list | x.a]", {{"x", "y"}}), "[`y` IN n.list | `y`.a]");
  EXPECT_EQ(renamed("ANY(x IN n.list WHERE x > n)", {{"x", "y"}}),
            "ANY(`y` IN n.list WHERE `y` > n)");
  EXPECT_EQ(renamed("[p = (n)-->(m) WHERE m.x | p]", {{"p", "q"}, {"m", "k"}}),
            "[`q` = (n)-->(`k`) WHERE `k`.x | `q`]");
  EXPECT_EQ(renamed("EXISTS { MATCH (n) WITH n AS x RETURN x, n }", nToM),
            "EXISTS { MATCH (`m`) WITH `m` AS x RETURN x, `m` }");
}

TEST(Renaming, QuotesANewNameThatNeedsIt) {
  EXPECT_EQ(renamed("n", {{"n", "a b"}}), "`a b`");
  EXPECT_EQ(renamed("n", {{"n", "a`b"}}), "`a``b`");
  EXPECT_EQ(renamed("n", {{"n", "a`"}}), "`a```");
  EXPECT_EQ(renamed("n", {{"n", ""}}), "``");
}

TEST(Renaming, TakesANewNameThatBeginsWithABackQuoteAsItIs) {
  EXPECT_EQ(renamed("n.x", {{"n", "`m`"}}), "`m`.x");
  EXPECT_EQ(renamed("n.x", {{"n", "`not well formed"}}), "`not well formed.x");
  EXPECT_EQ(renamed("n.x", {{"n", "`"}}), "`.x");
}

TEST(Renaming, MatchesOldNamesInBackQuotedForm) {
  EXPECT_EQ(renamed("`a``b`", {{"a`b", "m"}}), "`m`");
  EXPECT_EQ(renamed("`a``b`", {{"`a``b`", "m"}}), "`m`");
  EXPECT_EQ(renamed("``", {{"", "m"}}), "`m`");
  EXPECT_EQ(renamed("n", {{"`n", "m"}}), "n");
}

TEST(Renaming, DistinguishesNamesByCase) { EXPECT_EQ(renamed("n + N", nToM), "`m` + N"); }

TEST(Renaming, KeepsTheFormOfOtherVariables) {
  EXPECT_EQ(renamed("`x`.a + x.b + n", nToM), "`x`.a + x.b + `m`");
}

TEST(Renaming, SwapsNamesInOneGo) {
  EXPECT_EQ(renamed("a.x = b.y", {{"a", "b"}, {"b", "a"}}), "`b`.x = `a`.y");
}

TEST(Renaming, LetsTheLaterOfTwoKeysForOneVariableWin) {
  const std::unordered_map<WideString, WideString> renames{{wide("n"), wide("plain")},
                                                           {wide("`n`"), wide("quoted")}};
  WideString later;
  for (const auto& entry : renames) {
    later = entry.second;
  }
  EXPECT_EQ(vorn::ReplaceVariableNamesInPropertyFilterOCExpression(wide("n"), renames),
            wide("`") + later + wide("`"));
}

TEST(Renaming, WorksOnNamesOutsideAscii) {
  EXPECT_EQ(renamed("名前.年齢 > 𠮷.x", {{"名前", "имя"}, {"𠮷", "😀"}}), "`имя`.年齢 > `😀`.x");
}

TEST(Renaming, KeepsWhiteSpaceAndCommentsInsideTheExpression) {
  EXPECT_EQ(renamed("n . a\t=\u00A0/* n */1+\r\n//x\nn", nToM),
            "`m` . a\t=\u00A0/* n */1+\r\n//x\n`m`");
}

TEST(Renaming, DropsTextAfterTheExpression) {
  EXPECT_EQ(renamed("n.a = 1 ", nToM), "`m`.a = 1");
  EXPECT_EQ(renamed("n.a = 1 RETURN n", nToM), "`m`.a = 1");
  EXPECT_EQ(renamed("n)n", nToM), "`m`");
}

TEST(Renaming, DropsAByteOrderMark) { EXPECT_EQ(renamed("\uFEFFn", nToM), "`m`"); }

TEST(Renaming, HandlesAThousandNames) {
  std::string filter;
  std::string expected;
  Renames renames;
  for (int i = 0; i < 1000; ++i) {
    const std::string number = std::to_string(i);
    filter += (i == 0 ? "v" : " + v") + number;
    expected += (i == 0 ? "`w" : " + `w") + number + "`";
    renames.emplace("v" + number, "w" + number);
  }
  EXPECT_EQ(renamed(filter, renames), expected);
}

TEST(Renaming, HandlesNamesOfAMegabyte) {
  const std::string longName(1 << 20, 'x');
  EXPECT_EQ(renamed("n", {{"n", longName}}), "`" + longName + "`");
  EXPECT_EQ(renamed(longName + ".a", {{longName, "m"}}), "`m`.a");
}

TEST(Renaming, FailsOnATextThatIsNoExpressionBeforeItLooksAtTheMap) {
  std::unordered_map<WideString, WideString> broken{
      {WideString(1, static_cast<vorn::WideChar>(0xD800)), wide("m")}};
  const Failure failure = failureOf(
      [&] { vorn::ReplaceVariableNamesInPropertyFilterOCExpression(wide("= n"), broken); });
  EXPECT_TRUE(isSyntaxError(failure)) << failure;
}

}  // namespace
