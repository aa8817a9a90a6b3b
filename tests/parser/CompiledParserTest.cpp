// Tests what the compiled parser accepts and which nodes it makes, above all where a few tokens
// ahead do not tell the alternative.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "parser/CompiledText.h"

using vorn::TreeRule;
using vorn::Verdict;

namespace vorn {

std::ostream& operator<<(std::ostream& out, Verdict verdict) {
  return out << (verdict == Verdict::Accepted  ? "accepted"
                 : verdict == Verdict::Refused ? "refused"
                                               : "too deep");
}

}  // namespace vorn

namespace {

using Texts = std::vector<std::string>;

Verdict verdictOnQuery(const std::string& query) { return CompiledText(query).parseQuery(); }

Verdict verdictOnExpression(const std::string& expression) {
  return CompiledText(expression).parseExpression();
}

void expectQueries(Verdict verdict, const Texts& queries) {
  for (const std::string& query : queries) {
    EXPECT_EQ(verdictOnQuery(query), verdict) << query;
  }
}

// The texts of a rule's nodes in an expression, which must be accepted.
Texts nodes(const std::string& expression, TreeRule rule) {
  CompiledText compiled(expression);
  EXPECT_EQ(compiled.parseExpression(), Verdict::Accepted) << expression;
  return compiled.texts(rule);
}

Texts nodesOfQuery(const std::string& query, TreeRule rule) {
  CompiledText compiled(query);
  EXPECT_EQ(compiled.parseQuery(), Verdict::Accepted) << query;
  return compiled.texts(rule);
}

TEST(CompiledParser, WantsAQueryFromTheFirstToTheLastToken) {
  expectQueries(Verdict::Accepted, {"RETURN 1", " RETURN 1 ; ", "CREATE (a)", "\uFEFFRETURN 1"});
  expectQueries(Verdict::Refused, {"", " ", ";", "RETURN", "RETURN 1 2", "RETURN 1;;", "RETURN 1 ?",
                                   "RETURN 1; RETURN 2", "? RETURN 1", "n.a", "MATCH (a)"});
}

TEST(CompiledParser, WantsAnExpressionFromTheFirstToTheLastToken) {
  for (const char* expression : {"n.a", "1", "\uFEFFn", "n.a = 1 AND NOT n.b", "n ", "n\n",
                                 "n // c", "(a)-[b]-(c) /* d */ "}) {
    EXPECT_EQ(verdictOnExpression(expression), Verdict::Accepted) << expression;
  }
  for (const char* text : {"", " ", " n", "n RETURN", "n ?", "n + ", "RETURN 1", "n.", "(n"}) {
    EXPECT_EQ(verdictOnExpression(text), Verdict::Refused) << text;
  }
}

TEST(CompiledParser, LearnsOnlyAtTheEndOfAQueryPartThatAWithEndsIt) {
  expectQueries(
      Verdict::Accepted,
      {"MATCH (a) RETURN a", "MATCH (a) WITH a RETURN a", "MATCH (a) MATCH (b) WITH a, b RETURN a",
       "MATCH (a) CREATE (b) WITH a RETURN a", "CREATE (a) WITH a MATCH (b) RETURN b",
       "CREATE (a) SET a.b = 1", "MATCH (a) CREATE (b) RETURN b", "WITH 1 AS x RETURN x",
       "WITH 1 AS x WITH x AS y WITH y CREATE (a)", "MATCH (a) WITH a CREATE (b)",
       "UNWIND [1] AS x WITH x WHERE x > 1 MATCH (a) RETURN a UNION MATCH (b) WITH b RETURN b",
       "CREATE (a) MERGE (b) DELETE a SET a.b = 1 REMOVE a.c WITH * RETURN 1"});
  expectQueries(Verdict::Refused, {"MATCH (a)", "MATCH (a) WITH a", "CREATE (a) WITH a",
                                   "CREATE (a) MATCH (b) RETURN b", "WITH 1 AS x",
                                   "MATCH (a) WITH a MATCH (b)", "RETURN 1 WITH 1 AS x RETURN x",
                                   "RETURN 1 CREATE (a)", "MATCH (a) RETURN a MATCH (b) RETURN b"});
}

TEST(CompiledParser, FindsEachWithOfAQuery) {
  EXPECT_EQ(
      nodesOfQuery("MATCH (a) WITH a CREATE (b) WITH a, b WHERE a.x RETURN a", TreeRule::oC_With),
      (Texts{"WITH a", "WITH a, b WHERE a.x"}));
  EXPECT_EQ(nodesOfQuery("WITH 1 AS x WITH x AS y CREATE (a)", TreeRule::oC_ProjectionItem),
            (Texts{"1 AS x", "x AS y"}));
  EXPECT_EQ(nodesOfQuery("RETURN 1 UNION ALL RETURN 2 UNION RETURN 3", TreeRule::oC_Union),
            (Texts{"UNION ALL RETURN 2", "UNION RETURN 3"}));
  EXPECT_EQ(nodesOfQuery("UNWIND a AS b RETURN b", TreeRule::oC_Unwind), Texts{"UNWIND a AS b"});
}

TEST(CompiledParser, TakesABracketForALiteralIfItIsOne) {
  for (const char* list : {"[]", "[a]", "[a, b]", "[a IN b]", "[x IN xs, y]", "[(a)-[b]-(c)]",
                           "[p = (a)-[b]-(c)]", "[(a)]", "[a IN b AND c]", "[[x IN xs]]"}) {
    EXPECT_EQ(nodes(list, TreeRule::oC_ListComprehension), Texts{}) << list;
    EXPECT_EQ(nodes(list, TreeRule::oC_PatternComprehension), Texts{}) << list;
  }
  EXPECT_EQ(nodes("[p = (a)-[b]-(c)]", TreeRule::oC_PatternPredicate), Texts{"(a)-[b]-(c)"});
  EXPECT_EQ(nodes("[x IN xs]", TreeRule::oC_PropertyOrLabelsExpression),
            (Texts{"[x IN xs]", "x", "xs"}));
}

TEST(CompiledParser, TakesABracketForAComprehensionIfItHasAConditionOrAResult) {
  for (const char* list : {"[x IN xs WHERE x]", "[x IN xs | x]", "[ x IN xs WHERE x.a | x.b ]",
                           "[x IN (a)-[b]-(c) | x]", "[x IN xs|x]"}) {
    EXPECT_EQ(nodes(list, TreeRule::oC_ListComprehension), Texts{list}) << list;
  }
  EXPECT_EQ(nodes("[x IN [y IN ys] | [z IN zs WHERE z]]", TreeRule::oC_ListComprehension),
            (Texts{"[x IN [y IN ys] | [z IN zs WHERE z]]", "[z IN zs WHERE z]"}));
  EXPECT_EQ(nodes("[x IN xs | x]", TreeRule::oC_Variable), (Texts{"x", "xs", "x"}));
}

TEST(CompiledParser, TakesABracketForAPatternComprehensionIfAResultFollowsThePattern) {
  for (const char* list : {"[(a)-[b]-(c) | 1]", "[p = (a)-[b]-(c) | p]",
                           "[ (a)-->(b) WHERE a.x | b ]", "[(a)--(b)--(c)|1]"}) {
    EXPECT_EQ(nodes(list, TreeRule::oC_PatternComprehension), Texts{list}) << list;
    EXPECT_EQ(nodes(list, TreeRule::oC_PatternPredicate), Texts{}) << list;
  }
  EXPECT_EQ(nodes("[(a)--() | [(b)--() | [(c)--()]]]", TreeRule::oC_PatternComprehension),
            (Texts{"[(a)--() | [(b)--() | [(c)--()]]]", "[(b)--() | [(c)--()]]"}));
  for (const char* text : {"[(a) | 1]", "[(a)-(b) | 1]", "[a | 1]", "[p = a | 1]", "[a WHERE b]",
                           "[x IN xs, y | 1]", "[(a)--(b) WHERE a]"}) {
    EXPECT_EQ(verdictOnExpression(text), Verdict::Refused) << text;
  }
}

TEST(CompiledParser, TakesAParenthesisForAPatternIfARelationshipFollows) {
  for (const char* pattern : {"(a)--(b)", "(a)-[b]-(c)", "()-->()", "(a:B {c: 1})<-[d:E]-()",
                              "(a) - - (b)", "(a)-[b]-(c)-[d]-(e)", "(a)<-->(b)", "(a $p)--()"}) {
    EXPECT_EQ(nodes(pattern, TreeRule::oC_PatternPredicate), Texts{pattern}) << pattern;
  }
  for (const char* expression :
       {"(a)", "(a:B)", "(a)-(b)", "((a))", "(a)-b", "(a)-[b]", "(a)<(b)", "(a) < -(b)",
        "(a)-[b]-c", "(a)-[b]-(c.d)", "(a)-[b]-(1)", "(a)-[b, c]-(d)"}) {
    EXPECT_EQ(nodes(expression, TreeRule::oC_PatternPredicate), Texts{}) << expression;
  }
}

TEST(CompiledParser, TakesNamesWithAParenthesisForAQuantifierIfItReadsLikeOne) {
  for (const char* quantifier :
       {"any(x IN xs)", "none(x IN xs WHERE x)", "single( x IN xs )", "ANY (x IN xs WHERE x.a)",
        "all(x IN xs)", "all(x IN [1] WHERE x)"}) {
    EXPECT_EQ(nodes(quantifier, TreeRule::oC_Quantifier), Texts{quantifier}) << quantifier;
  }
  for (const char* function : {"any(1)", "none()", "single(x)", "any(x IN xs, 1)", "any.b(x IN y)",
                               "any(DISTINCT x IN xs)", "any", "none.a"}) {
    EXPECT_EQ(nodes(function, TreeRule::oC_Quantifier), Texts{}) << function;
  }
  EXPECT_EQ(verdictOnExpression("all(1)"), Verdict::Refused);
  EXPECT_EQ(verdictOnExpression("all"), Verdict::Refused);
  EXPECT_EQ(nodes("any(1)", TreeRule::oC_Variable), Texts{});
  EXPECT_EQ(nodes("any", TreeRule::oC_Variable), Texts{"any"});
}

TEST(CompiledParser, TakesCountForAFunctionUnlessAStarFollows) {
  for (const char* count : {"count(*)", "COUNT ( * )"}) {
    EXPECT_EQ(nodes(count, TreeRule::oC_Atom), Texts{count}) << count;
  }
  EXPECT_EQ(nodes("count(a)", TreeRule::oC_Variable), Texts{"a"});
  EXPECT_EQ(nodes("count(DISTINCT a)", TreeRule::oC_Variable), Texts{"a"});
  EXPECT_EQ(nodes("count", TreeRule::oC_Variable), Texts{"count"});
  EXPECT_EQ(nodes("count.a", TreeRule::oC_PropertyKeyName), Texts{"a"});
  EXPECT_EQ(verdictOnExpression("count(*, 1)"), Verdict::Refused);
}

TEST(CompiledParser, TakesDotsForAFunctionsNameIfAParenthesisFollows) {
  EXPECT_EQ(nodes("a.b.c", TreeRule::oC_Variable), Texts{"a"});
  EXPECT_EQ(nodes("a.b.c", TreeRule::oC_PropertyKeyName), (Texts{"b", "c"}));
  EXPECT_EQ(nodes("a.b.c(d)", TreeRule::oC_Variable), Texts{"d"});
  EXPECT_EQ(nodes("a.b.c(d)", TreeRule::oC_PropertyKeyName), Texts{});
  EXPECT_EQ(nodes("a.b.c (d).e", TreeRule::oC_PropertyKeyName), Texts{"e"});
  EXPECT_EQ(nodes("a(b)", TreeRule::oC_Variable), Texts{"b"});
  EXPECT_EQ(nodes("a", TreeRule::oC_Variable), Texts{"a"});
  EXPECT_EQ(nodes("a.b:C", TreeRule::oC_LabelName), Texts{"C"});
  // Reserved words may be keys but no part of a function's name, and such a name has no blanks.
  EXPECT_EQ(nodes("a.b.in", TreeRule::oC_PropertyKeyName), (Texts{"b", "in"}));
  EXPECT_EQ(nodes("a. b .c", TreeRule::oC_PropertyKeyName), (Texts{"b", "c"}));
  EXPECT_EQ(verdictOnExpression("a.in(b)"), Verdict::Refused);
  EXPECT_EQ(verdictOnExpression("a. b(c)"), Verdict::Refused);
}

TEST(CompiledParser, TakesTheLongestPattern) {
  EXPECT_EQ(nodes("(a)-[b]-(c)-[d]-(e)", TreeRule::oC_NodePattern), (Texts{"(a)", "(c)", "(e)"}));
  EXPECT_EQ(nodes("(a)-[b]-(c).d", TreeRule::oC_PatternPredicate), Texts{"(a)-[b]-(c)"});
}

TEST(CompiledParser, TakesALinkThatIsNoneForOperators) {
  const std::string text = "(a)-[b]-(c)-[d]-(e.f)";
  EXPECT_EQ(nodes(text, TreeRule::oC_PatternPredicate), Texts{"(a)-[b]-(c)"});
  EXPECT_EQ(nodes(text, TreeRule::oC_NodePattern), (Texts{"(a)", "(c)"}));
  EXPECT_EQ(nodes(text, TreeRule::oC_RelationshipDetail), Texts{"[b]"});
  EXPECT_EQ(nodes(text, TreeRule::oC_PropertyOrLabelsExpression),
            (Texts{"(a)-[b]-(c)", "[d]", "d", "(e.f)", "e.f"}));
  EXPECT_EQ(nodes("(a)--(b)--(c + 1)", TreeRule::oC_PatternPredicate), Texts{"(a)--(b)"});
  EXPECT_EQ(nodes("(a)--(b + 1)--(c)", TreeRule::oC_PatternPredicate), Texts{});
  EXPECT_EQ(nodes("(a)-[b]-(c)-[d]", TreeRule::oC_PatternPredicate), Texts{"(a)-[b]-(c)"});
  EXPECT_EQ(nodes("(a)-[b]-(c)-d", TreeRule::oC_PatternPredicate), Texts{"(a)-[b]-(c)"});
  EXPECT_EQ(nodes("(a)-[b]-(c) < (d)", TreeRule::oC_PatternPredicate), Texts{"(a)-[b]-(c)"});
}

TEST(CompiledParser, LeavesNoNodeOfAnAlternativeThatDoesNotFit) {
  CompiledText tried("(a)-[b]-(c.d)");
  ASSERT_EQ(tried.parseExpression(), Verdict::Accepted);
  EXPECT_EQ(tried.texts(TreeRule::oC_NodePattern), Texts{});
  EXPECT_EQ(tried.texts(TreeRule::oC_Variable), (Texts{"a", "b", "c"}));
  CompiledText nested("[x IN [y IN [(a)-[b]-(c) | 1] WHERE y] | [(d)--(e)]]");
  ASSERT_EQ(nested.parseExpression(), Verdict::Accepted);
  EXPECT_EQ(nested.texts(TreeRule::oC_Variable), (Texts{"x", "y", "a", "b", "c", "y", "d", "e"}));
}

TEST(CompiledParser, TakesACallForAPartOfAQueryIfMoreFollows) {
  expectQueries(
      Verdict::Accepted,
      {"CALL a.b() RETURN 1", "CALL a.b() YIELD c RETURN c", "CALL a() CALL b() RETURN 1",
       "CALL a.b(1) YIELD c WHERE c > 1 MATCH (d) RETURN d", "CALL a() WITH 1 AS x RETURN x",
       "CALL a() YIELD b CREATE (c)", "MATCH (a) CALL b(a) YIELD c RETURN c"});
  expectQueries(Verdict::Refused,
                {"CALL a.b RETURN 1", "CALL a.b YIELD c RETURN c", "CALL a.b() YIELD * RETURN 1",
                 "CALL a() CALL b", "CALL a() CALL b()", "CALL a MATCH (b) RETURN b",
                 "MATCH (a) CALL b(a)", "CALL a() YIELD b WITH b"});
}

TEST(CompiledParser, TakesACallForAllOfAQueryIfNothingFollows) {
  expectQueries(Verdict::Accepted,
                {"CALL a", "CALL a.b.c", "CALL a.b()", "CALL a.b ( 1 , 2 )", "CALL a YIELD *",
                 "CALL a() YIELD *", "CALL a YIELD b, c AS d", "CALL a() YIELD b WHERE b > 1",
                 "CALL a.b() ;", "CALL count", "CALL any.none()"});
  expectQueries(Verdict::Refused,
                {"CALL", "CALL a.", "CALL a(", "CALL a()()", "CALL a b", "CALL a YIELD", "CALL 1",
                 "CALL a. b", "CALL a.in", "CALL a UNION CALL b", "CALL a() UNION CALL b()"});
}

TEST(CompiledParser, FindsVariablesInCallsButNoneInNamesOfProcedures) {
  EXPECT_EQ(nodesOfQuery("CALL a.b", TreeRule::oC_Variable), Texts{});
  EXPECT_EQ(nodesOfQuery("CALL a.b(c, d.e)", TreeRule::oC_Variable), (Texts{"c", "d"}));
  EXPECT_EQ(nodesOfQuery("CALL a(b) YIELD c, d AS e", TreeRule::oC_Variable),
            (Texts{"b", "c", "e"}));
  EXPECT_EQ(nodesOfQuery("CALL a YIELD c AS d", TreeRule::oC_Variable), Texts{"d"});
  EXPECT_EQ(nodesOfQuery("CALL a(b) YIELD c RETURN c", TreeRule::oC_Variable),
            (Texts{"b", "c", "c"}));
  EXPECT_EQ(nodesOfQuery("CALL a(b) YIELD c RETURN c", TreeRule::oC_Expression), (Texts{"b", "c"}));
}

TEST(CompiledParser, FindsAPartOfEachPattern) {
  EXPECT_EQ(nodesOfQuery("MATCH p = (a)-[r]->(b), (c) RETURN p", TreeRule::oC_PatternPart),
            (Texts{"p = (a)-[r]->(b)", "(c)"}));
  EXPECT_EQ(nodesOfQuery("MATCH ((a)--(b)) RETURN 1", TreeRule::oC_NodePattern),
            (Texts{"(a)", "(b)"}));
  EXPECT_EQ(nodesOfQuery("RETURN EXISTS { MATCH (a) RETURN a }, EXISTS { (b) WHERE b.c }",
                         TreeRule::oC_ExistentialSubquery),
            (Texts{"EXISTS { MATCH (a) RETURN a }", "EXISTS { (b) WHERE b.c }"}));
}

TEST(CompiledParser, RefusesATextThatIsNotWhollyInTokens) {
  CompiledText cut("n.a ?");
  EXPECT_EQ(cut.parseExpression(), Verdict::Refused);
  CompiledText query("RETURN 1 ?");
  EXPECT_EQ(query.parseQuery(), Verdict::Refused);
}

TEST(CompiledParser, RefusesEachTextThatIsCutOff) {
  const std::string query =
      "MATCH p = (a:`A b` {k: [1, 2.5e-3]})-[r:R|:S*1..2]->(b) WHERE any(x IN y WHERE x) AND "
      "(a)-[b]-(c)-[d]-(e) WITH [x IN y | CASE WHEN x THEN 1 ELSE 2 END] AS c RETURN";
  for (std::size_t length = 0; length <= query.size(); ++length) {
    EXPECT_EQ(verdictOnQuery(query.substr(0, length)), Verdict::Refused) << length;
  }
  EXPECT_EQ(verdictOnQuery(query + " c"), Verdict::Accepted);
}

}  // namespace
