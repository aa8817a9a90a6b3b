#include <gtest/gtest.h>

#include "support/Columns.h"

namespace {

TEST(Star, SortsTheVariablesByNameAndNotByBinding) {
  EXPECT_EQ(analyse("MATCH (b), (a) RETURN *"), answered({{"a", node}, {"b", node}}));
}

TEST(Star, SortsByTheBytesOfUtf8) {
  EXPECT_EQ(analyse("MATCH (ab), (a), (B), (é), (`~`), (𠮷), (\uFF21), (`z`) RETURN *"),
            answered({{"B", node},
                      {"a", node},
                      {"ab", node},
                      {"z", node},
                      {"~", node},
                      {"é", node},
                      {"\uFF21", node},
                      {"𠮷", node}}));
}

TEST(Star, GivesEveryKind) {
  EXPECT_EQ(analyse("MATCH p = (n)-[r]-() UNWIND [1] AS u RETURN *"),
            answered({{"n", node}, {"p", path}, {"r", relationship}, {"u", unknown}}));
}

TEST(Star, IsFollowedByTheItemsBehindIt) {
  EXPECT_EQ(analyse("MATCH (b), (a) RETURN *, b.x AS x, a"),
            answered({{"a", node}, {"b", node}, {"x", unknown}, {"a", node}}));
}

TEST(Star, OfNothingGivesNoColumns) { EXPECT_EQ(analyse("MATCH () RETURN *"), answered({})); }

TEST(Star, InsideAnExpressionIsNotTheStar) {
  EXPECT_EQ(analyse("MATCH (n) RETURN count(*), 2 * 3"),
            answered({{"count(*)", unknown}, {"2 * 3", unknown}}));
}

TEST(With, LeavesOnlyItsNamesInScope) {
  EXPECT_EQ(analyse("MATCH (n) WITH n AS m RETURN *"), answered({{"m", node}}));
  EXPECT_EQ(analyse("MATCH (n) WITH n AS m RETURN n"), answered({{"n", unknown}}));
}

TEST(With, CarriesKindsThroughAChain) {
  EXPECT_EQ(analyse("MATCH p = (n)-[r]-() WITH n, r AS s, p WITH n AS m, s, p RETURN m, s, p"),
            answered({{"m", node}, {"s", relationship}, {"p", path}}));
}

TEST(With, DropsAVariableOfUnknownKindUnlessItHasAnAlias) {
  EXPECT_EQ(analyse("UNWIND [1,2] AS x WITH x RETURN *"), answered({}));
  EXPECT_EQ(analyse("UNWIND [1,2] AS x WITH x AS x RETURN *"), answered({{"x", unknown}}));
}

TEST(With, CarriesVariablesOfUnknownKindThroughAStar) {
  EXPECT_EQ(analyse("UNWIND [1] AS x MATCH (n) WITH * RETURN *"),
            answered({{"n", node}, {"x", unknown}}));
}

TEST(With, NamesAComputedValueOnlyByItsAlias) {
  EXPECT_EQ(analyse("MATCH (n) WITH n.a AS a, count(n) AS c RETURN *"),
            answered({{"a", unknown}, {"c", unknown}}));
  EXPECT_EQ(analyse("MATCH (n) WITH n.a RETURN *"), answered({}));
}

TEST(With, LetsTheLastOfTwoEqualNamesWin) {
  EXPECT_EQ(analyse("MATCH (n)-[r]-() WITH n AS x, r AS x RETURN x"),
            answered({{"x", relationship}}));
  EXPECT_EQ(analyse("MATCH (n)-[r]-() WITH *, r AS n RETURN *"),
            answered({{"n", relationship}, {"r", relationship}}));
}

TEST(With, TakesKindsFromBeforeItself) {
  EXPECT_EQ(analyse("MATCH (n)-[r]-() WITH r AS n, n AS r RETURN n, r"),
            answered({{"n", relationship}, {"r", node}}));
}

TEST(With, IsNotTouchedByItsWhereOrderSkipAndLimit) {
  EXPECT_EQ(analyse("MATCH (n) WITH n ORDER BY n.x SKIP 1 LIMIT 2 WHERE n.y > 1 RETURN *"),
            answered({{"n", node}}));
}

TEST(With, LetsItsWhereBindVariables) {
  EXPECT_EQ(analyse("MATCH (n) WITH n WHERE (n)-->(m) RETURN *"),
            answered({{"m", node}, {"n", node}}));
}

TEST(With, GivesTheColumnsOfAQueryThatEndsInAnUpdate) {
  EXPECT_EQ(analyse("MATCH (n) WITH n, n.x AS x SET n.y = x"),
            answered({{"n", node}, {"x", unknown}}));
}

TEST(Projection, IsAbsentFromAnUpdateAndAProcedureCall) {
  EXPECT_EQ(analyse("CREATE (n)-[r:T]->(m)"), answered({}));
  EXPECT_EQ(analyse("MATCH (n) DETACH DELETE n"), answered({}));
  EXPECT_EQ(analyse("CALL lib.proc"), answered({}));
  EXPECT_EQ(analyse("CALL lib.proc() YIELD *"), answered({}));
}

TEST(Projection, DoesNotChangeTheScopeInAReturn) {
  EXPECT_EQ(analyse("MATCH (n) RETURN n AS m UNION RETURN n"), answered({{"n", node}}));
}

// The walk reaches the inner projection after the outer one.
TEST(Projection, InsideAnExistentialSubqueryReplacesTheColumnsAroundIt) {
  EXPECT_EQ(analyse("MATCH (n) RETURN n, EXISTS { MATCH (m) RETURN m AS inner }"),
            answered({{"inner", node}}));
  EXPECT_EQ(analyse("MATCH (n) RETURN n ORDER BY EXISTS { MATCH (m) RETURN 1 AS one }"),
            answered({{"one", unknown}}));
}

TEST(Projection, InsideAnExistentialSubqueryBeforeTheReturnIsReplacedByIt) {
  EXPECT_EQ(analyse("MATCH (n) WHERE EXISTS { MATCH (m) RETURN m AS inner } RETURN n"),
            answered({{"n", node}}));
}

TEST(Projection, InsideAnExistentialSubqueryOfAWithReplacesTheScope) {
  EXPECT_EQ(
      analyse("MATCH (n), (k) WITH n, k WHERE EXISTS { MATCH (m) RETURN m AS inner } RETURN *"),
      answered({{"inner", node}}));
}

TEST(Projection, BehindAnInnerWithOfAWithLeavesTheScopeAlone) {
  EXPECT_EQ(
      analyse("MATCH (n) WITH n WHERE EXISTS { MATCH (m) WITH m AS k RETURN 1 AS one } RETURN *"),
      answered({{"k", node}}));
}

}  // namespace
