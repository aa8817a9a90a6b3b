#include <gtest/gtest.h>

#include "support/Filters.h"

namespace {

TEST(Validation, RejectsAListComprehension) {
  EXPECT_EQ(failureOfUsages("size([x IN n.list | x]) > 0"), forbidden("OC_ListComprehension"));
  EXPECT_EQ(failureOfUsages("[x IN n.list | x.a]"), forbidden("OC_ListComprehension"));
  EXPECT_EQ(failureOfUsages("[x IN n.list WHERE x > 1]"), forbidden("OC_ListComprehension"));
}

// In the grammar a list literal stands before a comprehension, so it wins if a text is both.
TEST(Validation, TakesAListOfOneMembershipTestForAList) {
  EXPECT_EQ(failureOfUsages("[x IN n.list]"), (Failure{Failure::Kind::none, ""}));
}

TEST(Validation, RejectsAPatternComprehension) {
  EXPECT_EQ(failureOfUsages("[(n)-->(m) | m.name]"), forbidden("OC_PatternComprehension"));
  EXPECT_EQ(failureOfUsages("[p = (n)-->() WHERE n.x | p]"), forbidden("OC_PatternComprehension"));
}

TEST(Validation, RejectsEveryQuantifier) {
  for (const char* quantifier : {"ANY", "ALL", "NONE", "SINGLE", "any", "All"}) {
    EXPECT_EQ(failureOfUsages(std::string(quantifier) + "(x IN n.list WHERE x > 1)"),
              forbidden("OC_Quantifier"));
  }
}

TEST(Validation, RejectsAPatternPredicate) {
  EXPECT_EQ(failureOfUsages("(n)-->(m)"), forbidden("OC_PatternPredicate"));
  EXPECT_EQ(failureOfUsages("n.a = 1 AND NOT (n)-[:R]-()"), forbidden("OC_PatternPredicate"));
}

TEST(Validation, RejectsAnExistentialSubquery) {
  EXPECT_EQ(failureOfUsages("EXISTS { (n)-->(m) }"), forbidden("OC_ExistentialSubquery"));
  EXPECT_EQ(failureOfUsages("EXISTS { MATCH (n) RETURN n }"), forbidden("OC_ExistentialSubquery"));
}

TEST(Validation, ReportsTheOuterOfTwoNestedElements) {
  EXPECT_EQ(failureOfUsages("[(n)-->(m) | [x IN m.list | x]]"),
            forbidden("OC_PatternComprehension"));
  EXPECT_EQ(failureOfUsages("[x IN [(n)-->(m) | m] | x]"), forbidden("OC_ListComprehension"));
  EXPECT_EQ(failureOfUsages("ANY(x IN [y IN n.list | y] WHERE (x)-->())"),
            forbidden("OC_Quantifier"));
}

TEST(Validation, ReportsTheLeftOfTwoElementsSideBySide) {
  EXPECT_EQ(failureOfUsages("(n)-->() AND ANY(x IN n.list WHERE x)"),
            forbidden("OC_PatternPredicate"));
  EXPECT_EQ(failureOfUsages("ANY(x IN n.list WHERE x) AND (n)-->()"), forbidden("OC_Quantifier"));
}

TEST(Validation, FindsElementsAtAnyDepth) {
  EXPECT_EQ(failureOfUsages("CASE WHEN n.a THEN {k: [1, f(ANY(x IN n.l WHERE x))]} END"),
            forbidden("OC_Quantifier"));
}

TEST(Validation, LetsEverythingElsePass) {
  for (const char* filter :
       {"[1, n.a, 'x']", "{k: n.a}", "CASE n.a WHEN 1 THEN 2 ELSE 3 END", "toUpper(n.a) = 'X'",
        "$p = n.a", "(n.a)", "count(*)", "count(n)", "n.list[0..2]", "n.a IN [1, 2]", "any(n)",
        "single", "none.a", "NOT n:Label", "n.a = 1 OR n.b STARTS WITH 'x' AND n.c IS NOT NULL"}) {
    EXPECT_EQ(failureOfUsages(filter), (Failure{Failure::Kind::none, ""})) << filter;
  }
}

TEST(Validation, IsNotReachedByATextThatIsNoExpression) {
  EXPECT_TRUE(isSyntaxError(failureOfUsages("[x IN n.list | ]")));
}

TEST(Validation, DoesNotLookAtTextAfterTheExpression) {
  EXPECT_EQ(failureOfUsages("n.a [x IN n.list | x]").kind, Failure::Kind::other);
  EXPECT_EQ(failureOfUsages("n.a) AND (n)-->()"), (Failure{Failure::Kind::none, ""}));
}

}  // namespace
