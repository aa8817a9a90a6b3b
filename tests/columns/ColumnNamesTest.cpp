#include <gtest/gtest.h>

#include "support/Columns.h"

using vorn::CypherType;

namespace {

TEST(ColumnNames, AreTheTextOfTheExpressionAsWritten) {
  EXPECT_EQ(analyse("MATCH (n) RETURN n.x + 1"), answered({{"n.x + 1", unknown}}));
  EXPECT_EQ(analyse("MATCH (n) RETURN  n . x+1  ,\tCOUNT( * )"),
            answered({{"n . x+1", unknown}, {"COUNT( * )", unknown}}));
}

TEST(ColumnNames, KeepCommentsInsideAnExpressionButNotAroundIt) {
  EXPECT_EQ(analyse("RETURN /* a */ 1 /* b */ + 2 // c"), answered({{"1 /* b */ + 2", unknown}}));
}

TEST(ColumnNames, LoseTheBackQuotesOfQuotedNames) {
  EXPECT_EQ(analyse("MATCH (`my node`) RETURN `my node`"), answered({{"my node", node}}));
  EXPECT_EQ(analyse("MATCH (n) RETURN n.`first name`"), answered({{"n.first name", unknown}}));
  EXPECT_EQ(analyse("MATCH (n) RETURN n AS `my alias`"), answered({{"my alias", node}}));
}

TEST(ColumnNames, KeepOneOfADoubledBackQuote) {
  EXPECT_EQ(analyse("MATCH (`a``b`) RETURN `a``b`"), answered({{"a`b", node}}));
  EXPECT_EQ(analyse("RETURN 1 AS ````"), answered({{"`", unknown}}));
  EXPECT_EQ(analyse("RETURN 1 AS ``````"), answered({{"``", unknown}}));
}

TEST(ColumnNames, MayBeEmpty) {
  EXPECT_EQ(analyse("MATCH (``) RETURN ``"), answered({{"", node}}));
}

TEST(ColumnNames, AreOneWhetherQuotedOrNot) {
  EXPECT_EQ(analyse("MATCH (`n`) RETURN n"), answered({{"n", node}}));
  EXPECT_EQ(analyse("MATCH (n) RETURN `n`"), answered({{"n", node}}));
}

TEST(ColumnNames, LoseBackQuotesInsideStringsToo) {
  EXPECT_EQ(analyse("RETURN '`'"), answered({{"''", unknown}}));
  EXPECT_EQ(analyse("RETURN 'a`b`c'"), answered({{"'abc'", unknown}}));
  EXPECT_EQ(analyse("RETURN '``'"), answered({{"''", unknown}}));
  EXPECT_EQ(analyse("RETURN 'a``b'"), answered({{"'ab'", unknown}}));
  EXPECT_EQ(analyse("RETURN 'a`b``c'"), answered({{"'ab`c'", unknown}}));
}

TEST(ColumnNames, FindAVariableWhoseNameReadsLikeTheExpression) {
  EXPECT_EQ(analyse("MATCH (`n.x`) RETURN n.x"), answered({{"n.x", node}}));
  EXPECT_EQ(analyse("MATCH (`count(*)`) RETURN count(*)"), answered({{"count(*)", node}}));
}

TEST(ColumnNames, AreUtf16AlsoOutsideTheBasicMultilingualPlane) {
  EXPECT_EQ(analyse("MATCH (名前) RETURN 名前"), answered({{"名前", node}}));
  EXPECT_EQ(analyse("MATCH (𠮷) RETURN 𠮷, '😀' AS `😀`"), answered({{"𠮷", node}, {"😀", unknown}}));
}

TEST(ColumnNames, MayRepeat) {
  EXPECT_EQ(analyse("MATCH (n), ()-[r]-() RETURN n, n, r AS n"),
            answered({{"n", node}, {"n", node}, {"n", CypherType::Relationship}}));
}

TEST(ColumnNames, AreNotTouchedByDistinctOrderSkipAndLimit) {
  EXPECT_EQ(analyse("MATCH (n) RETURN DISTINCT n, n.x ORDER BY n.y DESC,n.z SKIP 1 LIMIT 2"),
            answered({{"n", node}, {"n.x", unknown}}));
}

TEST(ColumnNames, OfAnExpressionThatNestsDeeplyAreWhole) {
  const std::string deep = std::string(200, '[') + "1" + std::string(200, ']');
  EXPECT_EQ(analyse("RETURN " + deep), answered({{deep, unknown}}));
}

}  // namespace
