#include <gtest/gtest.h>

#include "support/Accepts.h"
#include "support/ParsedText.h"

using vorn::CypherParser;

namespace {

bool acceptsPattern(const std::string& pattern) {
  return accepts("MATCH " + pattern + " RETURN 1");
}

struct Heads {
  bool left;
  bool right;
};

Heads headsOf(const std::string& pattern) {
  const ParsedText tree = ParsedText::ofQuery("MATCH " + pattern + " RETURN 1");
  const auto relationships = tree.all<CypherParser::OC_RelationshipPatternContext>();
  EXPECT_EQ(relationships.size(), 1U);
  return {relationships.front()->oC_LeftArrowHead() != nullptr,
          relationships.front()->oC_RightArrowHead() != nullptr};
}

TEST(RelationshipPatterns, HaveHeadsOnBothSidesOrLeftOrRightOrNowhere) {
  for (const char* detail : {"", "[r]"}) {
    const std::string inside = detail;
    const Heads both = headsOf("(a)<-" + inside + "->(b)");
    EXPECT_TRUE(both.left && both.right);
    const Heads left = headsOf("(a)<-" + inside + "-(b)");
    EXPECT_TRUE(left.left && !left.right);
    const Heads right = headsOf("(a)-" + inside + "->(b)");
    EXPECT_TRUE(!right.left && right.right);
    const Heads none = headsOf("(a)-" + inside + "-(b)");
    EXPECT_TRUE(!none.left && !none.right);
  }
}

TEST(RelationshipPatterns, AdmitWhiteSpaceBetweenTheirSymbols) {
  EXPECT_TRUE(acceptsPattern("(a) < - [ r ] - > (b)"));
  EXPECT_TRUE(acceptsPattern("(a) - - (b)"));
  EXPECT_FALSE(acceptsPattern("(a)-(b)"));
  EXPECT_FALSE(acceptsPattern("(a)->(b)"));
}

TEST(RelationshipPatterns, TakeTypographicDashesAndHeads) {
  const Heads right = headsOf("(a)—[r]—＞(b)");
  EXPECT_TRUE(!right.left && right.right);
  for (const char* dash : {"\u00AD", "\u2010", "\u2011", "\u2012", "\u2013", "\u2014", "\u2015",
                           "\u2212", "\uFE58", "\uFE63", "\uFF0D"}) {
    EXPECT_TRUE(acceptsPattern(std::string("(a)") + dash + "-(b)")) << dash;
    EXPECT_FALSE(acceptsExpression(std::string("1 ") + dash + " 2")) << dash;
  }
  for (const char* head : {"\u27E8", "\u3008", "\uFE64", "\uFF1C"}) {
    EXPECT_TRUE(acceptsPattern(std::string("(a)") + head + "--(b)")) << head;
    EXPECT_FALSE(acceptsPattern(std::string("(a)--") + head + "(b)")) << head;
    EXPECT_FALSE(acceptsExpression(std::string("1 ") + head + " 2")) << head;
  }
  for (const char* head : {"\u27E9", "\u3009", "\uFE65", "\uFF1E"}) {
    EXPECT_TRUE(acceptsPattern(std::string("(a)--") + head + "(b)")) << head;
    EXPECT_FALSE(acceptsPattern(std::string("(a)") + head + "--(b)")) << head;
    EXPECT_FALSE(acceptsExpression(std::string("1 ") + head + " 2")) << head;
  }
}

TEST(RelationshipDetails, ListTypesWithOrWithoutLaterColons) {
  EXPECT_TRUE(acceptsPattern("()-[:A|B]-()"));
  EXPECT_TRUE(acceptsPattern("()-[:A|:B]-()"));
  EXPECT_TRUE(acceptsPattern("()-[:A |: B| C]-()"));
  EXPECT_FALSE(acceptsPattern("()-[:A:B]-()"));
  EXPECT_FALSE(acceptsPattern("()-[:A| :B]-()"));
}

TEST(RelationshipDetails, HaveRangesOfManyForms) {
  for (const char* range :
       {"*", "*1", "*..2", "*1..2", "*1..", "*..", "* 1 .. 2 ", "* .. 2", "*0x1"}) {
    EXPECT_TRUE(acceptsPattern("()-[" + std::string(range) + "]-()")) << range;
    EXPECT_TRUE(acceptsPattern("()-[r:T" + std::string(range) + "{k: 1}]-()")) << range;
  }
  EXPECT_FALSE(acceptsPattern("()-[1..2]-()"));
  EXPECT_FALSE(acceptsPattern("()-[*-1]-()"));
  EXPECT_FALSE(acceptsPattern("()-[*1.5]-()"));
}

TEST(RelationshipDetails, HaveTheirPartsInAFixedOrder) {
  EXPECT_TRUE(acceptsPattern("()-[ r :T *1..2 {k: 1} ]-()"));
  EXPECT_FALSE(acceptsPattern("()-[r *1 :T]-()"));
  EXPECT_FALSE(acceptsPattern("()-[:T r]-()"));
  EXPECT_FALSE(acceptsPattern("()-[{k: 1} *]-()"));
}

TEST(NodePatterns, HaveTheirPartsInAFixedOrder) {
  EXPECT_TRUE(acceptsPattern("( n :A :B {k: 1} )"));
  EXPECT_TRUE(acceptsPattern("(n:A:B$p)"));
  EXPECT_TRUE(acceptsPattern("()"));
  EXPECT_FALSE(acceptsPattern("({k: 1} :A)"));
  EXPECT_FALSE(acceptsPattern("(:A n)"));
  EXPECT_FALSE(acceptsPattern("(n|m)"));
}

TEST(PatternElements, MayBeWrappedInParenthesesWithoutWhiteSpaceInside) {
  EXPECT_TRUE(acceptsPattern("((n)-->(m))"));
  EXPECT_TRUE(acceptsPattern("(((n)))"));
  EXPECT_FALSE(acceptsPattern("( (n)-->(m))"));
  EXPECT_FALSE(acceptsPattern("((n)-->(m) )"));
}

TEST(PatternParts, MayNameTheirPath) {
  EXPECT_TRUE(acceptsPattern("p=(n)"));
  EXPECT_TRUE(acceptsPattern("p = (n)--(), q = (m) , ()"));
  EXPECT_TRUE(acceptsPattern("p = shortestPath( (a)-[*]-(b) )"));
  EXPECT_TRUE(acceptsPattern("allShortestPaths ((a)-[*]-(b))"));
  EXPECT_FALSE(acceptsPattern("p.q = (n)"));
}

TEST(RelationshipPatterns, TakeADifferentDashOnEachSide) {
  for (const char* dash : {"\u00AD", "\u2010", "\u2011", "\u2012", "\u2013", "\u2014", "\u2015",
                           "\u2212", "\uFE58", "\uFE63", "\uFF0D"}) {
    EXPECT_TRUE(acceptsPattern(std::string("(a)-[r]") + dash + "(b)")) << dash;
    EXPECT_FALSE(acceptsExpression(dash + std::string("1"))) << dash;
  }
  EXPECT_TRUE(acceptsPattern("(a)\uFF1C\u2212[r]\uFE63\u27E9(b)"));
  EXPECT_TRUE(acceptsExpression("(a)—[r]—＞(b)"));
}

TEST(RelationshipPatterns, KeepTheirSymbolsApartInTheTree) {
  const ParsedText tree = ParsedText::ofQuery("MATCH (a)<-[r]—＞(b) RETURN 1");
  EXPECT_EQ(tree.texts<CypherParser::OC_LeftArrowHeadContext>(), std::vector<std::string>{"<"});
  EXPECT_EQ(tree.texts<CypherParser::OC_DashContext>(), (std::vector<std::string>{"-", "—"}));
  EXPECT_EQ(tree.texts<CypherParser::OC_RightArrowHeadContext>(), std::vector<std::string>{"＞"});
}

// The tokens <> and <= take the arrow head and the character behind it.
TEST(RelationshipPatterns, AreNotReadAcrossLongerTokens) {
  EXPECT_FALSE(acceptsPattern("(a)<>(b)"));
  EXPECT_FALSE(acceptsPattern("(a)<=-(b)"));
}

TEST(PatternElements, ChainRelationshipsAndNodes) {
  const ParsedText tree = ParsedText::ofQuery("MATCH (a)-->(b) <-- (c)--(d) RETURN 1");
  const auto elements = tree.all<CypherParser::OC_PatternElementContext>();
  ASSERT_EQ(elements.size(), 1U);
  EXPECT_EQ(elements.front()->oC_NodePattern()->getText(), "(a)");
  EXPECT_EQ(tree.texts<CypherParser::OC_PatternElementChainContext>(),
            (std::vector<std::string>{"-->(b)", "<-- (c)", "--(d)"}));
}

TEST(PatternElements, InParenthesesNestInTheTree) {
  const ParsedText tree = ParsedText::ofQuery("MATCH ((n)-->(m)) RETURN 1");
  EXPECT_EQ(tree.texts<CypherParser::OC_PatternElementContext>(),
            (std::vector<std::string>{"((n)-->(m))", "(n)-->(m)"}));
}

TEST(RelationshipDetails, KeepTheWhiteSpaceBehindARangeInTheRange) {
  const ParsedText tree = ParsedText::ofQuery("MATCH ()-[r:A|:B * 1 .. 2 {k: 1}]-() RETURN 1");
  EXPECT_EQ(tree.texts<CypherParser::OC_RangeLiteralContext>(),
            std::vector<std::string>{"* 1 .. 2 "});
  EXPECT_EQ(tree.texts<CypherParser::OC_RelTypeNameContext>(),
            (std::vector<std::string>{"A", "B"}));
}

TEST(RelationshipDetails, HaveBoundsOfAnyIntegerForm) {
  EXPECT_TRUE(acceptsPattern("()-[*0x1..0o7]-()"));
  EXPECT_FALSE(acceptsPattern("()-[*1...2]-()"));
}

TEST(RelationshipDetails, HaveNoParametersForBounds) {
  const ParsedText tree = ParsedText::ofQuery("MATCH ()-[*1..$p]-() RETURN 1");
  EXPECT_EQ(tree.texts<CypherParser::OC_RangeLiteralContext>(), std::vector<std::string>{"*1.."});
  EXPECT_EQ(tree.texts<CypherParser::OC_PropertiesContext>(), std::vector<std::string>{"$p"});
  EXPECT_FALSE(acceptsPattern("()-[*$p..2]-()"));
}

TEST(Properties, OfAPatternAreAMapOrAParameter) {
  EXPECT_TRUE(acceptsPattern("(n $p)"));
  EXPECT_TRUE(acceptsPattern("(n{})-[$1]-({k: n.x})"));
  EXPECT_FALSE(acceptsPattern("(n [1])"));
  EXPECT_FALSE(acceptsPattern("(n {k: 1} {l: 2})"));
}

TEST(ShortestPaths, HoldAnyPatternElement) {
  const ParsedText tree = ParsedText::ofQuery("MATCH shortestPath((a)-[*]-(b)) RETURN 1");
  EXPECT_EQ(tree.count<CypherParser::OC_ShortestPathPatternContext>(), 1U);
  EXPECT_TRUE(acceptsPattern("shortestPath((a))"));
  EXPECT_FALSE(acceptsPattern("shortestPath(p = (a)--(b))"));
  EXPECT_FALSE(acceptsExpression("shortestPath((a)-[*]-(b))"));
}

}  // namespace
