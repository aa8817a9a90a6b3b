#include <gtest/gtest.h>

#include "support/Columns.h"

namespace {

TEST(ColumnTypes, AreThoseOfThePatternsThatBindTheVariables) {
  EXPECT_EQ(analyse("MATCH (n)-[r]->(m) RETURN n, r, m"),
            answered({{"n", node}, {"r", relationship}, {"m", node}}));
}

TEST(ColumnTypes, OfAPathAPropertyAndAnAggregate) {
  EXPECT_EQ(analyse("MATCH p = (a)-->(b) RETURN p, a.name AS name, count(*)"),
            answered({{"p", path}, {"name", unknown}, {"count(*)", unknown}}));
}

TEST(ColumnTypes, AreKeptUnderAnAlias) {
  EXPECT_EQ(analyse("MATCH (n) RETURN n AS x"), answered({{"x", node}}));
}

TEST(ColumnTypes, OfAShortestPathIsAPath) {
  EXPECT_EQ(analyse("MATCH p = shortestPath((a)-[*]-(b)) RETURN p, a"),
            answered({{"p", path}, {"a", node}}));
  EXPECT_EQ(analyse("MATCH p = allShortestPaths((a)-[*]-(b)) RETURN p"), answered({{"p", path}}));
}

TEST(ColumnTypes, OfAVariableLengthRelationshipIsStillARelationship) {
  EXPECT_EQ(analyse("MATCH ()-[r:KNOWS*1..3]->() RETURN r"), answered({{"r", relationship}}));
}

TEST(ColumnTypes, OfAnythingButABareVariableIsUnknown) {
  for (const char* expression : {"n.name", "(n)", "[n]", "n[0]", "{k: n}", "count(n)", "n + 1",
                                 "NOT n", "n:Label", "n IS NULL", "1", "'n'", "$n", "$1", "null",
                                 "true", "CASE WHEN n THEN n END", "-n", "n = n"}) {
    EXPECT_EQ(analyse("MATCH (n) RETURN " + std::string(expression)),
              answered({{expression, unknown}}));
  }
}

TEST(ColumnTypes, OfAnUnboundVariableIsUnknown) {
  EXPECT_EQ(analyse("MATCH (n) RETURN m"), answered({{"m", unknown}}));
  EXPECT_EQ(analyse("MATCH (n) RETURN N"), answered({{"N", unknown}}));
}

TEST(ColumnTypes, OfAnUnwoundVariableIsUnknown) {
  EXPECT_EQ(analyse("UNWIND [1, 2] AS x RETURN x"), answered({{"x", unknown}}));
}

TEST(ColumnTypes, FollowTheLastBindingOfAName) {
  EXPECT_EQ(analyse("MATCH (n) UNWIND [1] AS n RETURN n"), answered({{"n", unknown}}));
  EXPECT_EQ(analyse("UNWIND [1] AS n MATCH (n) RETURN n"), answered({{"n", node}}));
  EXPECT_EQ(analyse("MATCH (n) MATCH ()-[n]-() RETURN n"), answered({{"n", relationship}}));
  EXPECT_EQ(analyse("MATCH (n)-[n]-() RETURN n"), answered({{"n", relationship}}));
  EXPECT_EQ(analyse("MATCH n = (n) RETURN n"), answered({{"n", node}}));
}

TEST(ColumnTypes, CountBindingsOfEveryClauseThatHasPatterns) {
  EXPECT_EQ(analyse("OPTIONAL MATCH (n)-[r]-() RETURN n, r"),
            answered({{"n", node}, {"r", relationship}}));
  EXPECT_EQ(analyse("CREATE p = (n)-[r:T]->(m) RETURN n, r, p"),
            answered({{"n", node}, {"r", relationship}, {"p", path}}));
  EXPECT_EQ(analyse("MERGE (n)-[r:T]->(m) RETURN n, r, m"),
            answered({{"n", node}, {"r", relationship}, {"m", node}}));
}

TEST(ColumnTypes, CountBindingsInsideExpressions) {
  EXPECT_EQ(analyse("MATCH (n) WHERE (n)-[r]->(m) RETURN m, r"),
            answered({{"m", node}, {"r", relationship}}));
  EXPECT_EQ(analyse("MATCH (n) WHERE [(n)-[r]->(m) | m.x] = [] RETURN m, r"),
            answered({{"m", node}, {"r", relationship}}));
  EXPECT_EQ(analyse("MATCH (n) WHERE EXISTS { (n)-[r]->(m) } RETURN m, r"),
            answered({{"m", node}, {"r", relationship}}));
}

TEST(ColumnTypes, DoNotCountThePathNameOfAPatternComprehension) {
  EXPECT_EQ(analyse("MATCH (n) WHERE [p = (n)-->() | p] = [] RETURN p"),
            answered({{"p", unknown}}));
}

TEST(ColumnTypes, CountABindingOnlyFromWhereItStands) {
  EXPECT_EQ(analyse("MATCH (n) RETURN m, [(n)-->(m) | m]"),
            answered({{"m", unknown}, {"[(n)-->(m) | m]", unknown}}));
}

TEST(ColumnTypes, OfWhatAProcedureYieldsIsUnknown) {
  EXPECT_EQ(analyse("CALL lib.proc() YIELD x RETURN x"), answered({{"x", unknown}}));
  EXPECT_EQ(analyse("CALL lib.proc() YIELD y AS x RETURN x, y"),
            answered({{"x", unknown}, {"y", unknown}}));
}

TEST(ColumnTypes, LeaveAVariableThatAProcedureYieldsOnceMoreAsItWas) {
  EXPECT_EQ(analyse("MATCH (x) CALL lib.proc() YIELD x RETURN x"), answered({{"x", node}}));
}

TEST(ColumnTypes, OfAVariableThatAComprehensionBindsIsUnknown) {
  EXPECT_EQ(analyse("MATCH (n) RETURN [x IN [1] | x] AS list, x"),
            answered({{"list", unknown}, {"x", unknown}}));
}

}  // namespace
