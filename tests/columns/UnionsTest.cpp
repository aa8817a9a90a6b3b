#include <gtest/gtest.h>

#include "support/Columns.h"

namespace {

TEST(Union, KeepsAKindThatTheBranchesShare) {
  EXPECT_EQ(analyse("MATCH (n) RETURN n UNION MATCH (n) RETURN n"), answered({{"n", node}}));
  EXPECT_EQ(analyse("MATCH p = () RETURN p UNION MATCH p = () RETURN p"), answered({{"p", path}}));
}

TEST(Union, OfANodeAndARelationshipIsEither) {
  EXPECT_EQ(analyse("MATCH (n) RETURN n UNION MATCH ()-[n]->() RETURN n"),
            answered({{"n", nodeOrRelationship}}));
  EXPECT_EQ(analyse("MATCH ()-[n]->() RETURN n UNION MATCH (n) RETURN n"),
            answered({{"n", nodeOrRelationship}}));
}

TEST(Union, OfEitherAndANodeStaysEither) {
  EXPECT_EQ(analyse("MATCH (n) RETURN n UNION MATCH ()-[n]->() RETURN n UNION MATCH (n) RETURN n"),
            answered({{"n", nodeOrRelationship}}));
  EXPECT_EQ(analyse("MATCH (n) RETURN n UNION MATCH (n) RETURN n UNION MATCH ()-[n]->() RETURN n"),
            answered({{"n", nodeOrRelationship}}));
}

TEST(Union, OfOtherKindsIsUnknown) {
  EXPECT_EQ(analyse("MATCH (n) RETURN n UNION MATCH p = ()-->() RETURN p AS n"),
            answered({{"n", unknown}}));
  EXPECT_EQ(analyse("RETURN 1 AS n UNION MATCH (n) RETURN n"), answered({{"n", unknown}}));
}

TEST(Union, ThatBecameUnknownStaysUnknown) {
  EXPECT_EQ(analyse("MATCH p = () RETURN p AS n UNION MATCH (n) RETURN n UNION MATCH (n) RETURN n"),
            answered({{"n", unknown}}));
}

TEST(Union, ComparesWithTheKindThatEarlierBranchesLeft) {
  // Node against relationship gives either, and either against unknown is unknown.
  EXPECT_EQ(analyse("MATCH ()-[n]-() RETURN n UNION RETURN 1 AS n UNION MATCH (n) RETURN n"),
            answered({{"n", unknown}}));
}

TEST(Union, TakesNamesAndNumberOfColumnsFromTheLastBranch) {
  EXPECT_EQ(analyse("MATCH (n) RETURN n AS a, n AS b UNION MATCH (m) RETURN m AS c"),
            answered({{"c", node}}));
  EXPECT_EQ(analyse("MATCH (n) RETURN n AS a UNION MATCH (m)-[r]-() RETURN m AS b, r AS c"),
            answered({{"b", node}, {"c", relationship}}));
}

TEST(Union, ComparesByPositionAndNotByName) {
  EXPECT_EQ(analyse("MATCH (n)-[r]-() RETURN n, r UNION MATCH (n)-[r]-() RETURN r, n"),
            answered({{"r", nodeOrRelationship}, {"n", nodeOrRelationship}}));
}

TEST(Union, AllIsTreatedAlike) {
  EXPECT_EQ(analyse("MATCH (n) RETURN n UNION ALL MATCH ()-[n]->() RETURN n"),
            answered({{"n", nodeOrRelationship}}));
}

TEST(Union, LeavesNamesOfEarlierBranchesInScope) {
  EXPECT_EQ(analyse("MATCH (n) RETURN n AS x UNION RETURN n AS x"), answered({{"x", node}}));
  EXPECT_EQ(analyse("MATCH (n) RETURN n UNION MATCH ()-[r]-() RETURN *"),
            answered({{"n", node}, {"r", relationship}}));
}

TEST(Union, ComparesEachStarAsItsBranchHasIt) {
  // A variable that is bound behind a star, as in its ORDER BY, belongs to the next branch's star
  // only.
  EXPECT_EQ(analyse("MATCH (a) RETURN * ORDER BY EXISTS { (z) } UNION RETURN * "
                    "UNION MATCH ()-[z]->() RETURN *"),
            answered({{"a", node}, {"z", nodeOrRelationship}}));
  EXPECT_EQ(
      analyse("MATCH (a) RETURN * UNION RETURN * UNION MATCH ()-[a]->() RETURN * UNION RETURN *"),
      answered({{"a", nodeOrRelationship}}));
  EXPECT_EQ(analyse("MATCH (a) RETURN * UNION MATCH ()-[b]->() WITH b AS a RETURN * "
                    "UNION MATCH p = (a) RETURN p AS a"),
            answered({{"a", unknown}}));
}

TEST(Union, OfBranchesThatUpdateHasNoColumns) {
  EXPECT_EQ(analyse("CREATE (n) UNION CREATE (m)"), answered({}));
  EXPECT_EQ(analyse("MATCH (n) RETURN n UNION CREATE (m)"), answered({}));
}

TEST(Union, InsideAnExistentialSubqueryCountsAsABranch) {
  // The walk has just left the inner branch, so that one is merged.
  EXPECT_EQ(analyse("MATCH (n) WHERE EXISTS { MATCH (a) RETURN a UNION MATCH ()-[b]-() RETURN b } "
                    "RETURN n"),
            answered({{"n", node}}));
  EXPECT_EQ(analyse("MATCH (n) WHERE EXISTS { MATCH ()-[a]-() RETURN a UNION MATCH (b) RETURN b } "
                    "RETURN n"),
            answered({{"n", nodeOrRelationship}}));
}

}  // namespace
