#include <gtest/gtest.h>

#include "support/Accepts.h"
#include "support/ParsedText.h"

using vorn::CypherParser;
using Texts = std::vector<std::string>;

namespace {

TEST(Comparisons, ChainInOneContext) {
  const ParsedText tree = ParsedText::ofExpression("1 < 2 <= 3");
  const auto comparisons = tree.all<CypherParser::OC_ComparisonExpressionContext>();
  ASSERT_EQ(comparisons.size(), 1U);
  EXPECT_EQ(comparisons.front()->oC_PartialComparisonExpression().size(), 2U);
  EXPECT_TRUE(acceptsExpression("1=2<>3<4>5<=6>=7"));
}

TEST(Predicates, FollowAnOperandInAnyOrder) {
  for (const char* text : {"n STARTS WITH 'a' IS NOT NULL", "n IS NOT NULL STARTS WITH 'a'"}) {
    const ParsedText tree = ParsedText::ofExpression(text);
    const auto all = tree.all<CypherParser::OC_StringListNullPredicateExpressionContext>();
    ASSERT_EQ(all.size(), 1U) << text;
    EXPECT_EQ(all.front()->oC_StringPredicateExpression().size(), 1U) << text;
    EXPECT_EQ(all.front()->oC_NullPredicateExpression().size(), 1U) << text;
  }
  EXPECT_TRUE(acceptsExpression("n IN [1] ENDS WITH 'a' CONTAINS 'b' IS NULL"));
}

TEST(Predicates, DemandWhiteSpaceBeforeTheirKeyword) {
  EXPECT_FALSE(acceptsExpression("(n)IN [1]"));
  EXPECT_FALSE(acceptsExpression("(n)IS NULL"));
  EXPECT_FALSE(acceptsExpression("(n)STARTS WITH 'a'"));
  EXPECT_FALSE(acceptsExpression("(n)CONTAINS 'a'"));
  EXPECT_TRUE(acceptsExpression("(n) IN[1]"));
  EXPECT_TRUE(acceptsExpression("(n) STARTS WITH'a'"));
  EXPECT_TRUE(acceptsExpression("(n) CONTAINS'a'"));
}

TEST(Predicates, HaveNoRegularExpressions) { EXPECT_FALSE(acceptsExpression("n =~ 'a'")); }

TEST(BooleanOperators, DemandWhiteSpaceEvenNextToParentheses) {
  for (const char* word : {"OR", "XOR", "AND"}) {
    const std::string operation = word;
    EXPECT_FALSE(acceptsExpression("(a)" + operation + "(b)"));
    EXPECT_FALSE(acceptsExpression("(a) " + operation + "(b)"));
    EXPECT_FALSE(acceptsExpression("(a)" + operation + " (b)"));
    EXPECT_TRUE(acceptsExpression("(a) " + operation + " (b)"));
  }
}

TEST(BooleanOperators, BindOrLooserThanXorLooserThanAndLooserThanNot) {
  const ParsedText tree = ParsedText::ofExpression("g OR h XOR NOT i AND j");
  EXPECT_EQ(tree.texts<CypherParser::OC_XorExpressionContext>(), (Texts{"g", "h XOR NOT i AND j"}));
  EXPECT_EQ(tree.texts<CypherParser::OC_AndExpressionContext>(), (Texts{"g", "h", "NOT i AND j"}));
  EXPECT_EQ(tree.texts<CypherParser::OC_NotExpressionContext>(), (Texts{"g", "h", "NOT i", "j"}));
}

TEST(BooleanOperators, MayNegateManyTimes) {
  EXPECT_TRUE(acceptsExpression("NOT NOT(a)"));
  EXPECT_TRUE(acceptsExpression("NOT(a)"));
}

TEST(Arithmetic, IsAFlatListOfOperands) {
  const ParsedText tree = ParsedText::ofExpression("1 + 2 - 3+4");
  EXPECT_EQ(tree.count<CypherParser::OC_AddOrSubtractExpressionContext>(), 1U);
  EXPECT_EQ(tree.texts<CypherParser::OC_MultiplyDivideModuloExpressionContext>(),
            (Texts{"1", "2", "3", "4"}));
}

TEST(Arithmetic, BindsPowersTighterThanProductsTighterThanSums) {
  const ParsedText tree = ParsedText::ofExpression("1+2*3^4%5");
  EXPECT_EQ(tree.texts<CypherParser::OC_MultiplyDivideModuloExpressionContext>(),
            (Texts{"1", "2*3^4%5"}));
  EXPECT_EQ(tree.texts<CypherParser::OC_PowerOfExpressionContext>(), (Texts{"1", "2", "3^4", "5"}));
}

TEST(Signs, BindTighterThanPowers) {
  EXPECT_EQ(ParsedText::ofExpression("-2^3")
                .texts<CypherParser::OC_UnaryAddOrSubtractExpressionContext>(),
            (Texts{"-2", "3"}));
}

TEST(Signs, StandAloneBeforeAnOperand) {
  EXPECT_FALSE(acceptsExpression("--1"));
  EXPECT_FALSE(acceptsExpression("- -1"));
  EXPECT_FALSE(acceptsExpression("+-1"));
  EXPECT_TRUE(acceptsExpression("-(-1)"));
  EXPECT_TRUE(acceptsExpression("1 - -1"));
  EXPECT_TRUE(acceptsExpression("- 1"));
}

TEST(Brackets, AdmitNoWhiteSpaceJustInside) {
  for (const char* text : {"xs[0]", "xs[1..2]", "xs[1..]", "xs[..2]", "xs[..]", "xs [0] [1]"}) {
    EXPECT_TRUE(acceptsExpression(text)) << text;
  }
  for (const char* text : {"xs[ 0]", "xs[0 ]", "xs[]", "xs[0 .. 1]"}) {
    EXPECT_FALSE(acceptsExpression(text)) << text;
  }
}

TEST(Brackets, AdmitWhiteSpaceInListsAndComprehensions) {
  for (const char* text : {"[ 1 , 2 ]", "[]", "[ ]", "[ x IN xs | x ]", "[ (a)--(b) | a ]"}) {
    EXPECT_TRUE(acceptsExpression(text)) << text;
  }
}

TEST(Properties, ComeBeforeLabelsAndBehindAnAtom) {
  for (const char* text : {"n.a.b:L:M", "n . a : L", "f(x).a", "$p.a", "{k: 1}.k", "n:L"}) {
    EXPECT_TRUE(acceptsExpression(text)) << text;
  }
  EXPECT_FALSE(acceptsExpression("n:L.a"));
  EXPECT_FALSE(acceptsExpression("xs[0].a"));
  EXPECT_FALSE(acceptsExpression("n."));
}

TEST(Atoms, OfCountAndAStarAreNoFunction) {
  const ParsedText star = ParsedText::ofExpression("COUNT ( * )");
  EXPECT_EQ(star.count<CypherParser::OC_FunctionInvocationContext>(), 0U);
  EXPECT_NE(star.all<CypherParser::OC_AtomContext>().front()->COUNT(), nullptr);
  const ParsedText call = ParsedText::ofExpression("COUNT(n)");
  EXPECT_EQ(call.texts<CypherParser::OC_FunctionNameContext>(), Texts{"COUNT"});
  EXPECT_TRUE(acceptsExpression("count( DISTINCT n )"));
}

TEST(Atoms, OfExistsWantBraces) {
  EXPECT_FALSE(acceptsExpression("EXISTS(n.x)"));
  for (const char* text : {"EXISTS { (n)-->(m) }", "EXISTS{(n)}", "exists { (n)--() WHERE n.x }",
                           "EXISTS { MATCH (n) RETURN n }", "EXISTS { RETURN 1 UNION RETURN 2 }"}) {
    EXPECT_EQ(ParsedText::ofExpression(text).count<CypherParser::OC_ExistentialSubqueryContext>(),
              1U)
        << text;
    EXPECT_TRUE(acceptsExpression(text)) << text;
  }
  EXPECT_FALSE(acceptsExpression("EXISTS { }"));
}

template <typename Context>
bool isTakenFor(const std::string& text) {
  const ParsedText tree = ParsedText::ofExpression(text);
  auto* first = tree.all<CypherParser::OC_AtomContext>().front()->children.front();
  return dynamic_cast<Context*>(first) != nullptr && first->getText() == text;
}

TEST(Atoms, AreTakenForTheEarlierAlternativeWhereATextFitsTwo) {
  EXPECT_TRUE(isTakenFor<CypherParser::OC_LiteralContext>("[x IN xs]"));
  EXPECT_TRUE(isTakenFor<CypherParser::OC_LiteralContext>("[(a)--(b)]"));
  EXPECT_TRUE(isTakenFor<CypherParser::OC_ListComprehensionContext>("[x IN xs | x]"));
  EXPECT_TRUE(isTakenFor<CypherParser::OC_ListComprehensionContext>("[x IN xs WHERE x]"));
  EXPECT_TRUE(isTakenFor<CypherParser::OC_PatternComprehensionContext>("[(a)--(b) | a]"));
  EXPECT_TRUE(isTakenFor<CypherParser::OC_QuantifierContext>("any(x IN xs)"));
  EXPECT_TRUE(isTakenFor<CypherParser::OC_FunctionInvocationContext>("any(x)"));
  EXPECT_TRUE(isTakenFor<CypherParser::OC_PatternPredicateContext>("(a)--(b)"));
  EXPECT_TRUE(isTakenFor<CypherParser::OC_ParenthesizedExpressionContext>("(a)"));
  EXPECT_TRUE(isTakenFor<CypherParser::OC_LiteralContext>("{}"));
  EXPECT_TRUE(isTakenFor<CypherParser::OC_VariableContext>("count"));
}

TEST(Quantifiers, HaveFourForms) {
  for (const char* word : {"ALL", "ANY", "NONE", "SINGLE"}) {
    EXPECT_TRUE(acceptsExpression(std::string(word) + " ( x IN xs WHERE x > 1 )")) << word;
  }
  EXPECT_TRUE(acceptsExpression("any(x)"));
  EXPECT_FALSE(acceptsExpression("all(x)"));
  EXPECT_FALSE(acceptsExpression("ALL(x IN[1])"));
}

TEST(Case, TakesATestOrNot) {
  EXPECT_TRUE(acceptsExpression("CASE WHEN 1 THEN 2 END"));
  EXPECT_TRUE(acceptsExpression("CASE n.x WHEN 1 THEN 2 WHEN 3 THEN 4 ELSE 5 END"));
  EXPECT_TRUE(acceptsExpression("CASE(n)WHEN(1)THEN(2)ELSE(3)END"));
  EXPECT_FALSE(acceptsExpression("CASE n ELSE 1 END"));
  EXPECT_FALSE(acceptsExpression("CASE WHEN 1 END"));
}

TEST(PatternComprehensions, NeedARelationshipAndAProjection) {
  EXPECT_TRUE(acceptsExpression("[p = (a)--(b) WHERE a.x | p]"));
  EXPECT_FALSE(acceptsExpression("[(a) | a]"));
}

TEST(Functions, HaveNamesWithoutWhiteSpaceAroundDots) {
  EXPECT_TRUE(acceptsExpression("a.b.c(1)"));
  EXPECT_FALSE(acceptsExpression("a. b(1)"));
  EXPECT_FALSE(acceptsExpression("a .b(1)"));
  EXPECT_TRUE(acceptsExpression("f ( DISTINCT 1 , 2 )"));
  EXPECT_FALSE(acceptsExpression("f(1,)"));
}

TEST(Parameters, FollowTheDollarDirectly) {
  for (const char* text : {"$x", "$1", "$`a b`", "$count", "$a"}) {
    EXPECT_TRUE(acceptsExpression(text)) << text;
  }
  EXPECT_FALSE(acceptsExpression("$ x"));
  EXPECT_FALSE(acceptsExpression("$match"));
  EXPECT_FALSE(acceptsExpression("$0x1"));
}

TEST(Literals, AreOfManyKinds) {
  for (const char* text : {"true", "FALSE", "Null", "1", "0x1f", "0o17", "1.5", "1e3", "'s'",
                           "\"s\"", "[1, [2]]", "{a: 1, `b c`: {RETURN: 2}}"}) {
    EXPECT_TRUE(acceptsExpression(text)) << text;
  }
  EXPECT_FALSE(acceptsExpression("{1: 2}"));
  EXPECT_FALSE(acceptsExpression("017"));
}

TEST(StartRule, OfAnExpressionLeavesTheRestOfTheText) {
  EXPECT_EQ(
      ParsedText::ofExpression("n.a = 1 RETURN n").texts<CypherParser::OC_ExpressionContext>(),
      Texts{"n.a = 1"});
}

TEST(Atoms, OfAWholeQueryAreTakenForTheEarlierAlternativeToo) {
  const ParsedText path = ParsedText::ofQuery("RETURN (a)-[b]-(c)");
  EXPECT_EQ(path.texts<CypherParser::OC_PatternPredicateContext>(), Texts{"(a)-[b]-(c)"});
  EXPECT_EQ(path.count<CypherParser::OC_ParenthesizedExpressionContext>(), 0U);
  EXPECT_EQ(path.count<CypherParser::OC_ListLiteralContext>(), 0U);
  const ParsedText difference = ParsedText::ofQuery("RETURN (a)-[b]");
  EXPECT_EQ(difference.count<CypherParser::OC_PatternPredicateContext>(), 0U);
  EXPECT_EQ(difference.texts<CypherParser::OC_MultiplyDivideModuloExpressionContext>(),
            (Texts{"(a)", "a", "[b]", "b"}));
  const ParsedText node = ParsedText::ofQuery("RETURN (n)");
  EXPECT_EQ(node.texts<CypherParser::OC_ParenthesizedExpressionContext>(), Texts{"(n)"});
  const ParsedText membership = ParsedText::ofQuery("RETURN [x IN xs]");
  EXPECT_EQ(membership.count<CypherParser::OC_ListLiteralContext>(), 1U);
  EXPECT_EQ(membership.count<CypherParser::OC_ListComprehensionContext>(), 0U);
  const ParsedText comprehension = ParsedText::ofQuery("RETURN [x IN xs | y]");
  EXPECT_EQ(comprehension.count<CypherParser::OC_ListComprehensionContext>(), 1U);
  EXPECT_EQ(comprehension.count<CypherParser::OC_ListLiteralContext>(), 0U);
  const ParsedText map = ParsedText::ofQuery("RETURN {}");
  EXPECT_EQ(map.texts<CypherParser::OC_MapLiteralContext>(), Texts{"{}"});
}

TEST(Atoms, MayBeAParenthesisedNodeWithALabel) {
  EXPECT_TRUE(isTakenFor<CypherParser::OC_ParenthesizedExpressionContext>("(n:L)"));
  EXPECT_TRUE(isTakenFor<CypherParser::OC_PatternPredicateContext>("(n:L {k: 1})<--()"));
  EXPECT_FALSE(acceptsExpression("()"));
}

TEST(Comparisons, BindLooserThanPredicatesAndTighterThanNot) {
  const ParsedText tree = ParsedText::ofExpression("NOT 1 + 2 IN xs = g");
  EXPECT_EQ(tree.texts<CypherParser::OC_NotExpressionContext>(), Texts{"NOT 1 + 2 IN xs = g"});
  EXPECT_EQ(tree.texts<CypherParser::OC_ComparisonExpressionContext>(), Texts{"1 + 2 IN xs = g"});
  EXPECT_EQ(tree.texts<CypherParser::OC_StringListNullPredicateExpressionContext>(),
            (Texts{"1 + 2 IN xs", "g"}));
  EXPECT_EQ(tree.texts<CypherParser::OC_AddOrSubtractExpressionContext>(),
            (Texts{"1 + 2", "xs", "g"}));
}

TEST(Comparisons, ChainInAWholeQueryToo) {
  const ParsedText tree = ParsedText::ofQuery("RETURN 1 < 2 <= 3 <> 4");
  EXPECT_EQ(tree.count<CypherParser::OC_ComparisonExpressionContext>(), 1U);
  EXPECT_EQ(tree.texts<CypherParser::OC_PartialComparisonExpressionContext>(),
            (Texts{"< 2", "<= 3", "<> 4"}));
}

TEST(Predicates, AreAcceptedInAnyOrder) {
  EXPECT_TRUE(acceptsExpression("n.x STARTS WITH 'a' IS NOT NULL"));
  EXPECT_TRUE(acceptsExpression("n.x IS NOT NULL STARTS WITH 'a'"));
  EXPECT_FALSE(acceptsExpression("n.x IS NOTNULL"));
  EXPECT_FALSE(acceptsExpression("n.x STARTSWITH 'a'"));
  EXPECT_FALSE(acceptsExpression("(n)ENDS WITH 'a'"));
  EXPECT_TRUE(acceptsExpression("(n) ENDS WITH'a'"));
}

TEST(BooleanOperators, AreFlatLists) {
  const ParsedText tree = ParsedText::ofExpression("g AND h AND i OR j OR k XOR l XOR m");
  EXPECT_EQ(tree.count<CypherParser::OC_OrExpressionContext>(), 1U);
  EXPECT_EQ(tree.texts<CypherParser::OC_XorExpressionContext>(),
            (Texts{"g AND h AND i", "j", "k XOR l XOR m"}));
  EXPECT_EQ(tree.texts<CypherParser::OC_AndExpressionContext>(),
            (Texts{"g AND h AND i", "j", "k", "l", "m"}));
}

TEST(Arithmetic, KeepsOperandsAndOperatorsInTextOrder) {
  const ParsedText tree = ParsedText::ofExpression("1*2/3%4");
  Texts children;
  for (auto* child :
       tree.all<CypherParser::OC_MultiplyDivideModuloExpressionContext>().front()->children) {
    children.push_back(child->getText());
  }
  EXPECT_EQ(children, (Texts{"1", "*", "2", "/", "3", "%", "4"}));
  EXPECT_EQ(ParsedText::ofExpression("2 ^ 3^4")
                .texts<CypherParser::OC_UnaryAddOrSubtractExpressionContext>(),
            (Texts{"2", "3", "4"}));
}

TEST(Signs, BindLooserThanBracketsAndProperties) {
  const ParsedText tree = ParsedText::ofExpression("-n.xs[0][1..]");
  EXPECT_EQ(tree.texts<CypherParser::OC_ListOperatorExpressionContext>(),
            (Texts{"n.xs[0][1..]", "0", "1"}));
  EXPECT_EQ(tree.all<CypherParser::OC_PropertyOrLabelsExpressionContext>().front()->getText(),
            "n.xs");
}

TEST(Signs, AreNoPartOfANumber) {
  const ParsedText tree = ParsedText::ofExpression("-1");
  EXPECT_EQ(tree.texts<CypherParser::OC_NumberLiteralContext>(), Texts{"1"});
  EXPECT_TRUE(acceptsExpression("2^-1"));
  EXPECT_TRUE(acceptsExpression("1 +-1"));
}

TEST(Properties, AndLabelsAreChildrenOfTheirAtom) {
  const ParsedText tree = ParsedText::ofExpression("n.g .h:L :M");
  EXPECT_EQ(tree.texts<CypherParser::OC_PropertyKeyNameContext>(), (Texts{"g", "h"}));
  EXPECT_EQ(tree.texts<CypherParser::OC_LabelNameContext>(), (Texts{"L", "M"}));
  EXPECT_EQ(tree.texts<CypherParser::OC_NodeLabelsContext>(), Texts{":L :M"});
}

TEST(ExistentialSubqueries, HoldAQueryOrAPattern) {
  const ParsedText pattern = ParsedText::ofExpression("EXISTS { (n)-->(m), (m) WHERE n.x }");
  auto* first = pattern.all<CypherParser::OC_ExistentialSubqueryContext>().front();
  EXPECT_EQ(first->oC_RegularQuery(), nullptr);
  EXPECT_EQ(first->oC_Pattern()->getText(), "(n)-->(m), (m)");
  EXPECT_EQ(first->oC_Where()->getText(), "WHERE n.x");
  const ParsedText query = ParsedText::ofExpression("EXISTS { MATCH (n) RETURN n }");
  auto* second = query.all<CypherParser::OC_ExistentialSubqueryContext>().front();
  EXPECT_EQ(second->oC_RegularQuery()->getText(), "MATCH (n) RETURN n");
  EXPECT_EQ(second->oC_Pattern(), nullptr);
}

TEST(ExistentialSubqueries, HoldNoStandaloneCallAndNoFilterWithoutAPattern) {
  EXPECT_FALSE(acceptsExpression("EXISTS { CALL p }"));
  EXPECT_FALSE(acceptsExpression("EXISTS { WHERE n.x }"));
  EXPECT_FALSE(acceptsExpression("EXISTS"));
}

TEST(Quantifiers, WithoutAListAreFunctionsUnlessOfAll) {
  for (const char* text : {"any(x)", "none(x)", "single(x)"}) {
    EXPECT_TRUE(isTakenFor<CypherParser::OC_FunctionInvocationContext>(text)) << text;
  }
  for (const char* text :
       {"all(x IN xs)", "any(x IN xs WHERE x)", "none (x IN xs)", "single( x IN xs )"}) {
    EXPECT_TRUE(isTakenFor<CypherParser::OC_QuantifierContext>(text)) << text;
  }
}

TEST(FilterExpressions, AreAVariableAListAndPerhapsACondition) {
  const ParsedText tree = ParsedText::ofExpression("all(x IN n.xs WHERE x > 1)");
  EXPECT_EQ(tree.texts<CypherParser::OC_IdInCollContext>(), Texts{"x IN n.xs"});
  EXPECT_EQ(tree.texts<CypherParser::OC_WhereContext>(), Texts{"WHERE x > 1"});
  EXPECT_TRUE(acceptsExpression("[x IN [1]WHERE (x)|(x)]"));
  EXPECT_FALSE(acceptsExpression("all(`x`IN xs)"));
  EXPECT_FALSE(acceptsExpression("all(n.x IN xs)"));
}

TEST(Case, HasATestOnlyInItsSimpleForm) {
  const ParsedText generic = ParsedText::ofExpression("CASE WHEN 1 THEN 2 ELSE 3 END");
  auto* first = generic.all<CypherParser::OC_CaseExpressionContext>().front();
  EXPECT_EQ(first->oC_Expression().size(), 1U);
  EXPECT_NE(first->ELSE(), nullptr);
  const ParsedText simple = ParsedText::ofExpression("CASE n WHEN 1 THEN 2 WHEN 3 THEN 4 END");
  auto* second = simple.all<CypherParser::OC_CaseExpressionContext>().front();
  EXPECT_EQ(second->oC_Expression().size(), 1U);
  EXPECT_EQ(second->ELSE(), nullptr);
  EXPECT_EQ(second->oC_CaseAlternative().size(), 2U);
}

TEST(PatternComprehensions, MayNameTheirPathAndFilter) {
  const ParsedText tree = ParsedText::ofExpression("[ p = (a)--(b)WHERE g | p ]");
  auto* comprehension = tree.all<CypherParser::OC_PatternComprehensionContext>().front();
  EXPECT_EQ(comprehension->oC_Variable()->getText(), "p");
  EXPECT_EQ(comprehension->oC_RelationshipsPattern()->getText(), "(a)--(b)");
  EXPECT_EQ(comprehension->oC_Where()->getText(), "WHERE g");
  EXPECT_EQ(comprehension->oC_Expression()->getText(), "p");
  EXPECT_FALSE(acceptsExpression("[p = (a)--(b) WHERE a.x]"));
}

TEST(Functions, MayBeQualifiedAndDistinct) {
  const ParsedText tree = ParsedText::ofExpression("lib.sub.f(DISTINCT 1, 2)");
  auto* invocation = tree.all<CypherParser::OC_FunctionInvocationContext>().front();
  EXPECT_EQ(invocation->oC_FunctionName()->oC_Namespace()->getText(), "lib.sub.");
  EXPECT_EQ(invocation->oC_FunctionName()->oC_SymbolicName()->getText(), "f");
  EXPECT_NE(invocation->DISTINCT(), nullptr);
  EXPECT_EQ(invocation->oC_Expression().size(), 2U);
}

TEST(Parameters, AreNamedOrNumbered) {
  const ParsedText tree = ParsedText::ofExpression("$1 + $g + $`1`");
  const auto parameters = tree.all<CypherParser::OC_ParameterContext>();
  ASSERT_EQ(parameters.size(), 3U);
  EXPECT_NE(parameters[0]->DecimalInteger(), nullptr);
  EXPECT_EQ(parameters[1]->oC_SymbolicName()->getText(), "g");
  EXPECT_EQ(parameters[2]->oC_SymbolicName()->getText(), "`1`");
  EXPECT_FALSE(acceptsExpression("$01"));
  EXPECT_FALSE(acceptsExpression("$1.5"));
  EXPECT_FALSE(acceptsExpression("$/**/x"));
}

TEST(Literals, OfNumbersAreRealOrInteger) {
  for (const char* text : {"1.5", ".5", "1e3", "1.5E-3"}) {
    EXPECT_EQ(ParsedText::ofExpression(text).texts<CypherParser::OC_DoubleLiteralContext>(),
              Texts{text});
  }
  for (const char* text : {"0", "15", "0x1F", "0o17"}) {
    EXPECT_EQ(ParsedText::ofExpression(text).texts<CypherParser::OC_IntegerLiteralContext>(),
              Texts{text});
  }
}

}  // namespace
