#include <gtest/gtest.h>

#include "support/Accepts.h"

namespace {

TEST(Statements, StandAloneWithAnOptionalSemicolon) {
  EXPECT_TRUE(accepts("RETURN 1"));
  EXPECT_TRUE(accepts("RETURN 1;"));
  EXPECT_TRUE(accepts("  RETURN 1 \n;\t"));
  EXPECT_FALSE(accepts("RETURN 1; RETURN 2"));
  EXPECT_FALSE(accepts("RETURN 1;;"));
  EXPECT_FALSE(accepts("; RETURN 1"));
}

TEST(Statements, DoNotDefineASchema) {
  EXPECT_FALSE(accepts("CREATE CONSTRAINT FOR (n:L) REQUIRE n.x IS UNIQUE"));
  EXPECT_FALSE(accepts("DROP CONSTRAINT c"));
}

TEST(Queries, ThatOnlyReadMustReturn) {
  EXPECT_FALSE(accepts("MATCH (n)"));
  EXPECT_FALSE(accepts("UNWIND [1] AS x"));
  EXPECT_TRUE(accepts("MATCH (n) RETURN n"));
  EXPECT_TRUE(accepts("MATCH (n) RETURN n;"));
  EXPECT_TRUE(accepts("MATCH (n) RETURN n ;"));
}

TEST(Queries, ThatUpdateMayReturn) {
  EXPECT_TRUE(accepts("CREATE (n)"));
  EXPECT_TRUE(accepts("CREATE (n) RETURN n"));
  EXPECT_TRUE(accepts("MATCH (n) SET n.x = 1 DELETE n"));
  EXPECT_FALSE(accepts("CREATE (n) MATCH (m) RETURN m"));
}

TEST(Queries, OfSeveralPartsJoinThemByWith) {
  EXPECT_TRUE(accepts("MATCH (n) WITH n MATCH (m) RETURN m"));
  EXPECT_TRUE(accepts("CREATE (n) WITH n MATCH (m) RETURN m"));
  EXPECT_TRUE(accepts("WITH 1 AS x RETURN x"));
  EXPECT_FALSE(accepts("MATCH (n) WITH n"));
  EXPECT_FALSE(accepts("MATCH (n) RETURN n MATCH (m) RETURN m"));
}

TEST(Unions, JoinSingleQueries) {
  EXPECT_TRUE(accepts("RETURN 1 UNION RETURN 2"));
  EXPECT_TRUE(accepts("RETURN 1 UNION ALL RETURN 2 UNION RETURN 3"));
  EXPECT_TRUE(accepts("MATCH (n) RETURN [n]UNION MATCH (m) RETURN m"));
  EXPECT_FALSE(accepts("RETURN 1 UNIONALL RETURN 2"));
  EXPECT_FALSE(accepts("RETURN 1 UNION"));
  EXPECT_FALSE(accepts("CALL p UNION CALL p"));
}

TEST(ReadingClauses, TakeWhiteSpaceBehindTheirKeywordWhereItIsFree) {
  EXPECT_TRUE(accepts("MATCH(n)RETURN n"));
  EXPECT_TRUE(accepts("OPTIONAL MATCH(n)WHERE n.x RETURN n"));
  EXPECT_FALSE(accepts("UNWIND[1]AS x RETURN x"));
  EXPECT_TRUE(accepts("UNWIND[1] AS x RETURN x"));
  EXPECT_FALSE(accepts("OPTIONALMATCH (n) RETURN n"));
}

TEST(Where, DemandsWhiteSpaceBehindIt) {
  EXPECT_TRUE(accepts("MATCH (n) WHERE (n.x) RETURN n"));
  EXPECT_FALSE(accepts("MATCH (n) WHERE(n.x) RETURN n"));
}

TEST(UpdatingClauses, TakeWhiteSpaceBehindTheirKeywordWhereItIsFree) {
  EXPECT_TRUE(accepts("CREATE(n)"));
  EXPECT_TRUE(accepts("MERGE(n)"));
  EXPECT_TRUE(accepts("MATCH (n) SET(n).x = 1"));
  EXPECT_TRUE(accepts("MATCH (n) DELETE(n)"));
  EXPECT_TRUE(accepts("MATCH (n) DETACH DELETE(n)"));
}

TEST(Remove, DemandsWhiteSpaceBehindIt) {
  EXPECT_TRUE(accepts("MATCH (n) REMOVE (n).x"));
  EXPECT_FALSE(accepts("MATCH (n) REMOVE(n).x"));
}

TEST(Remove, WantsAVariableAndItsLabelsAdjacent) {
  EXPECT_TRUE(accepts("MATCH (n) REMOVE n:Label"));
  EXPECT_TRUE(accepts("MATCH (n) REMOVE n: Label :Other"));
  EXPECT_FALSE(accepts("MATCH (n) REMOVE n :Label"));
  EXPECT_TRUE(accepts("MATCH (n) REMOVE n .x, n.y . z"));
}

TEST(Set, AdmitsWhiteSpaceBetweenAVariableAndItsLabels) {
  EXPECT_TRUE(accepts("MATCH (n) SET n:Label"));
  EXPECT_TRUE(accepts("MATCH (n) SET n :Label"));
}

TEST(Set, HasFourForms) {
  EXPECT_TRUE(accepts("MATCH (n) SET n.x=1 , n = {} ,n += $p,n:A:B"));
  EXPECT_FALSE(accepts("MATCH (n) SET n.x += 1"));
  EXPECT_FALSE(accepts("MATCH (n) SET n"));
}

TEST(Merge, TakesActionsSetOffByWhiteSpace) {
  EXPECT_TRUE(accepts("MERGE (n) ON CREATE SET n.x = 1 ON MATCH SET n.y = 2"));
  EXPECT_TRUE(accepts("MERGE p = (n)-[:T]->(m)"));
  EXPECT_FALSE(accepts("MERGE (n)ON CREATE SET n.x = 1"));
  EXPECT_FALSE(accepts("MERGE (n), (m)"));
  EXPECT_FALSE(accepts("MERGE (n) ON DELETE SET n.x = 1"));
}

TEST(Call, InAQueryNeedsItsArgumentsAndCannotYieldAStar) {
  EXPECT_TRUE(accepts("CALL lib.proc(1, 2) YIELD x AS y, z WHERE z > 1 RETURN y"));
  EXPECT_TRUE(accepts("CALL proc() RETURN 1"));
  EXPECT_FALSE(accepts("CALL proc RETURN 1"));
  EXPECT_FALSE(accepts("CALL proc() YIELD * RETURN 1"));
}

TEST(Call, AloneMayLackArgumentsAndYieldAStar) {
  EXPECT_TRUE(accepts("CALL lib.proc"));
  EXPECT_TRUE(accepts("CALL lib.proc YIELD *"));
  EXPECT_TRUE(accepts("CALL lib.proc() YIELD *"));
  EXPECT_TRUE(accepts("CALL lib.proc()YIELD x"));
  EXPECT_FALSE(accepts("CALL lib.proc() YIELD*"));
  EXPECT_FALSE(accepts("CALL"));
}

TEST(Call, AdmitsNoWhiteSpaceAroundTheDotsOfAName) {
  EXPECT_FALSE(accepts("CALL lib .proc()"));
  EXPECT_FALSE(accepts("CALL lib. proc()"));
  EXPECT_TRUE(accepts("CALL a.b.c ( )"));
  EXPECT_FALSE(accepts("CALL proc(DISTINCT 1)"));
}

TEST(Projection, DemandsWhiteSpaceBeforeItsItems) {
  EXPECT_FALSE(accepts("RETURN*"));
  EXPECT_FALSE(accepts("RETURN(1)"));
  EXPECT_TRUE(accepts("RETURN *"));
  EXPECT_TRUE(accepts("RETURN DISTINCT *"));
  EXPECT_FALSE(accepts("RETURN DISTINCT(1)"));
  EXPECT_TRUE(accepts("RETURN/**/DISTINCT/**/(1)"));
}

TEST(Projection, AdmitsItemsBehindTheStarButNoStarBehindItems) {
  EXPECT_TRUE(accepts("MATCH (n) RETURN *, n.x AS x ,1"));
  EXPECT_FALSE(accepts("RETURN 1, *"));
}

TEST(Projection, DemandsWhiteSpaceAroundAs) {
  EXPECT_TRUE(accepts("RETURN (1) AS x"));
  EXPECT_FALSE(accepts("RETURN (1)AS x"));
  EXPECT_FALSE(accepts("RETURN 1 AS"));
  EXPECT_FALSE(accepts("RETURN 1 AS x.y"));
}

TEST(Order, AdmitsNoWhiteSpaceBeforeItsCommas) {
  EXPECT_TRUE(accepts("MATCH (n) RETURN n ORDER BY n.x,n.y"));
  EXPECT_TRUE(accepts("MATCH (n) RETURN n ORDER BY n.x, n.y"));
  EXPECT_FALSE(accepts("MATCH (n) RETURN n ORDER BY n.x , n.y"));
  EXPECT_FALSE(accepts("MATCH (n) RETURN n ORDER BY n.x ,n.y"));
  EXPECT_TRUE(accepts("MATCH (n) RETURN n , n.x"));
}

TEST(Order, HasFourWordsForItsDirections) {
  EXPECT_TRUE(accepts("RETURN 1 ORDER BY 1 ASC,2 ascending,3 DESC,(4)descending"));
}

TEST(Order, SkipAndLimitComeInThisOrder) {
  EXPECT_TRUE(accepts("RETURN 1 ORDER BY 1 SKIP 1 LIMIT 1"));
  EXPECT_TRUE(accepts("RETURN 1 LIMIT 1"));
  EXPECT_FALSE(accepts("RETURN 1 LIMIT 1 SKIP 1"));
  EXPECT_FALSE(accepts("RETURN 1 SKIP 1 ORDER BY 1"));
  EXPECT_FALSE(accepts("RETURN 1 LIMIT(1)"));
  EXPECT_FALSE(accepts("RETURN 1 SKIP(1)"));
  EXPECT_FALSE(accepts("RETURN (1)LIMIT 1"));
}

}  // namespace
