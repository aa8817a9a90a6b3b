#include <gtest/gtest.h>

#include "support/Accepts.h"
#include "support/ParsedText.h"

using vorn::CypherParser;

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

TEST(Statements, MayStandBetweenBlanksAndComments) {
  EXPECT_TRUE(accepts("/* a */ RETURN 1 // b\n /* c */ ; // d"));
  EXPECT_FALSE(accepts("// RETURN 1"));
  EXPECT_FALSE(accepts(""));
}

TEST(Statements, HoldNoTokenThatNoRuleUses) {
  EXPECT_FALSE(acceptsExpression("\\n"));
  EXPECT_FALSE(acceptsExpression("€"));
  EXPECT_FALSE(acceptsExpression("n.€"));
}

TEST(Queries, AreOfOnePartOrOfSeveral) {
  const ParsedText one = ParsedText::ofQuery("MATCH (n) RETURN n");
  EXPECT_EQ(one.count<CypherParser::OC_SinglePartQueryContext>(), 1U);
  EXPECT_EQ(one.count<CypherParser::OC_MultiPartQueryContext>(), 0U);
  const ParsedText several =
      ParsedText::ofQuery("MATCH (n) WITH n CREATE (m) WITH * UNWIND n.xs AS x RETURN x");
  const auto multiPart = several.all<CypherParser::OC_MultiPartQueryContext>();
  ASSERT_EQ(multiPart.size(), 1U);
  EXPECT_EQ(multiPart.front()->oC_With().size(), 2U);
  EXPECT_EQ(multiPart.front()->oC_ReadingClause().size(), 1U);
  EXPECT_EQ(multiPart.front()->oC_UpdatingClause().size(), 1U);
  EXPECT_EQ(multiPart.front()->oC_SinglePartQuery()->getText(), "UNWIND n.xs AS x RETURN x");
}

TEST(Unions, MayKeepDuplicates) {
  const auto allOf = [](const std::string& query) {
    const ParsedText tree = ParsedText::ofQuery(query);
    return tree.all<CypherParser::OC_UnionContext>().front()->ALL() != nullptr;
  };
  EXPECT_FALSE(allOf("RETURN 1 UNION RETURN 2"));
  EXPECT_TRUE(allOf("RETURN 1 UNION ALL RETURN 2"));
  EXPECT_TRUE(allOf("RETURN [1]UNION/**/ALL/**/RETURN 2"));
}

TEST(With, DemandsWhiteSpaceAndTakesAWhere) {
  EXPECT_TRUE(accepts("MATCH (n) WITH n WHERE n.x RETURN n"));
  EXPECT_TRUE(accepts("MATCH (n) WITH DISTINCT n ORDER BY n.x SKIP 1 LIMIT 2 WHERE n.x RETURN n"));
  EXPECT_TRUE(accepts("MATCH (n) WITH [n] AS ns, (n)WHERE n.x RETURN ns"));
  EXPECT_FALSE(accepts("MATCH (n) WITH* RETURN n"));
  EXPECT_FALSE(accepts("MATCH (n) WITH(n) RETURN n"));
  EXPECT_FALSE(accepts("MATCH (n) RETURN n WHERE n.x"));
}

TEST(Keywords, ThatDemandWhiteSpaceDoSoNextToSymbols) {
  EXPECT_FALSE(accepts("CALL`p`()"));
  EXPECT_FALSE(accepts("CALL p() YIELD`x`"));
  EXPECT_FALSE(accepts("RETURN 1 AS`x`"));
  EXPECT_FALSE(accepts("UNWIND [1] AS`x` RETURN 1"));
  EXPECT_FALSE(accepts("CALL p() YIELD `x`AS y"));
  EXPECT_FALSE(accepts("CALL p() YIELD x AS`y`"));
  EXPECT_FALSE(accepts("RETURN (1)ORDER BY 1"));
  EXPECT_FALSE(accepts("RETURN 1 ORDER BY(1)"));
  EXPECT_FALSE(accepts("RETURN (1)SKIP 1"));
  EXPECT_TRUE(accepts("CALL `p`()YIELD `x` AS `y`"));
  EXPECT_TRUE(accepts("RETURN (1) ORDER BY (1) SKIP (1) LIMIT (1)"));
}

TEST(Lists, AdmitWhiteSpaceOnBothSidesOfTheirCommas) {
  for (const char* comma : {",", " ,", ", ", "/**/,\n"}) {
    const std::string c = comma;
    EXPECT_TRUE(accepts("MATCH (n)" + c + "(m) RETURN n" + c + "m")) << c;
    EXPECT_TRUE(accepts("MATCH (n) RETURN *" + c + "n.x" + c + "n.y")) << c;
    EXPECT_TRUE(accepts("CREATE (n)" + c + "(m) SET n.x = 1" + c + "m.x = 2")) << c;
    EXPECT_TRUE(accepts("MATCH (n)--(m) DELETE n" + c + "m")) << c;
    EXPECT_TRUE(accepts("MATCH (n)--(m) REMOVE n.x" + c + "m:L")) << c;
    EXPECT_TRUE(accepts("CALL p(1" + c + "2) YIELD x" + c + "y RETURN x")) << c;
    EXPECT_TRUE(accepts("RETURN f(1" + c + "2)" + c + "[1" + c + "2]" + c + "{k: 1" + c + "l: 2}"))
        << c;
  }
}

TEST(Order, HoldsASortItemForEachComma) {
  const ParsedText tree = ParsedText::ofQuery("MATCH (n) RETURN n ORDER BY n.x DESC, n.y,n.z asc");
  EXPECT_EQ(tree.texts<CypherParser::OC_SortItemContext>(),
            (std::vector<std::string>{"n.x DESC", "n.y", "n.z asc"}));
}

TEST(Set, TellsItsFourFormsApart) {
  const ParsedText tree =
      ParsedText::ofQuery("MATCH (n) SET n.x = 1, n = $p, n += $p, n :L, f(n).x.y = 2");
  const auto items = tree.all<CypherParser::OC_SetItemContext>();
  ASSERT_EQ(items.size(), 5U);
  EXPECT_NE(items[0]->oC_PropertyExpression(), nullptr);
  EXPECT_EQ(items[0]->oC_Variable(), nullptr);
  EXPECT_NE(items[1]->oC_Variable(), nullptr);
  EXPECT_NE(items[1]->oC_Expression(), nullptr);
  EXPECT_NE(items[2]->oC_Variable(), nullptr);
  EXPECT_NE(items[2]->oC_Expression(), nullptr);
  EXPECT_NE(items[3]->oC_NodeLabels(), nullptr);
  EXPECT_NE(items[4]->oC_PropertyExpression(), nullptr);
}

TEST(Remove, TakesLabelsOrAProperty) {
  const ParsedText tree = ParsedText::ofQuery("MATCH (n) REMOVE n:A:B, n.x.y");
  const auto items = tree.all<CypherParser::OC_RemoveItemContext>();
  ASSERT_EQ(items.size(), 2U);
  EXPECT_NE(items[0]->oC_NodeLabels(), nullptr);
  EXPECT_NE(items[1]->oC_PropertyExpression(), nullptr);
  EXPECT_FALSE(accepts("MATCH (n) REMOVE n"));
}

TEST(Merge, KnowsWhatItsActionsAreFor) {
  const ParsedText tree =
      ParsedText::ofQuery("MERGE (n) ON CREATE SET n.x = 1 ON MATCH SET n.y = 2");
  const auto actions = tree.all<CypherParser::OC_MergeActionContext>();
  ASSERT_EQ(actions.size(), 2U);
  EXPECT_NE(actions[0]->CREATE(), nullptr);
  EXPECT_NE(actions[1]->MATCH(), nullptr);
}

TEST(Call, IsTheWholeStatementUnlessAClauseFollows) {
  const ParsedText alone = ParsedText::ofQuery("CALL p() YIELD x WHERE x > 1");
  EXPECT_EQ(alone.count<CypherParser::OC_StandaloneCallContext>(), 1U);
  EXPECT_EQ(alone.count<CypherParser::OC_InQueryCallContext>(), 0U);
  const ParsedText inside = ParsedText::ofQuery("CALL p() YIELD x WHERE x > 1 RETURN x");
  EXPECT_EQ(inside.count<CypherParser::OC_StandaloneCallContext>(), 0U);
  EXPECT_EQ(inside.count<CypherParser::OC_InQueryCallContext>(), 1U);
  EXPECT_EQ(inside.count<CypherParser::OC_WhereContext>(), 1U);
}

TEST(Call, WithoutArgumentsIsImplicit) {
  EXPECT_EQ(
      ParsedText::ofQuery("CALL p").count<CypherParser::OC_ImplicitProcedureInvocationContext>(),
      1U);
  EXPECT_EQ(
      ParsedText::ofQuery("CALL p()").count<CypherParser::OC_ExplicitProcedureInvocationContext>(),
      1U);
}

TEST(Call, RenamesAResultFieldWithAs) {
  const ParsedText tree = ParsedText::ofQuery("CALL p() YIELD x AS y, z");
  EXPECT_EQ(tree.texts<CypherParser::OC_ProcedureResultFieldContext>(),
            std::vector<std::string>{"x"});
  EXPECT_EQ(tree.texts<CypherParser::OC_VariableContext>(), (std::vector<std::string>{"y", "z"}));
}

TEST(Call, YieldsAStarOnItsOwn) {
  EXPECT_FALSE(accepts("CALL p() YIELD *, x"));
  EXPECT_FALSE(accepts("CALL p() YIELD * WHERE x"));
  EXPECT_FALSE(accepts("CALL p YIELD"));
}

}  // namespace
