#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "CypherLexer.h"
#include "CypherParser.h"
#include "support/Pipeline.h"

namespace {

using Names = std::vector<std::string>;

// Token types 1 to 45.
const Names literals = {
    "';'",       "','",       "'='",       "'+='",      "'*'",       "'('",       "')'",
    "'['",       "']'",       "':'",       "'|'",       "'..'",      "'<>'",      "'<'",
    "'>'",       "'<='",      "'>='",      "'+'",       "'-'",       "'/'",       "'%'",
    "'^'",       "'.'",       "'{'",       "'}'",       "'$'",       "'\\u27E8'", "'\\u3008'",
    "'\\uFE64'", "'\\uFF1C'", "'\\u27E9'", "'\\u3009'", "'\\uFE65'", "'\\uFF1E'", "'\\u00AD'",
    "'\\u2010'", "'\\u2011'", "'\\u2012'", "'\\u2013'", "'\\u2014'", "'\\u2015'", "'\\u2212'",
    "'\\uFE58'", "'\\uFE63'", "'\\uFF0D'"};

// Token types 46 to 129.
const Names symbols = {"UNION",
                       "ALL",
                       "OPTIONAL",
                       "MATCH",
                       "UNWIND",
                       "AS",
                       "MERGE",
                       "ON",
                       "CREATE",
                       "SET",
                       "DETACH",
                       "DELETE",
                       "REMOVE",
                       "CALL",
                       "YIELD",
                       "WITH",
                       "RETURN",
                       "DISTINCT",
                       "ORDER",
                       "BY",
                       "L_SKIP",
                       "LIMIT",
                       "ASCENDING",
                       "ASC",
                       "DESCENDING",
                       "DESC",
                       "WHERE",
                       "SHORTESTPATH",
                       "ALLSHORTESTPATHS",
                       "OR",
                       "XOR",
                       "AND",
                       "NOT",
                       "STARTS",
                       "ENDS",
                       "CONTAINS",
                       "IN",
                       "IS",
                       "NULL",
                       "COUNT",
                       "CASE",
                       "ELSE",
                       "END",
                       "WHEN",
                       "THEN",
                       "ANY",
                       "NONE",
                       "SINGLE",
                       "EXISTS",
                       "TRUE",
                       "FALSE",
                       "HexInteger",
                       "DecimalInteger",
                       "OctalInteger",
                       "HexLetter",
                       "HexDigit",
                       "Digit",
                       "NonZeroDigit",
                       "NonZeroOctDigit",
                       "OctDigit",
                       "ZeroDigit",
                       "ExponentDecimalReal",
                       "RegularDecimalReal",
                       "StringLiteral",
                       "EscapedChar",
                       "CONSTRAINT",
                       "DO",
                       "FOR",
                       "REQUIRE",
                       "UNIQUE",
                       "MANDATORY",
                       "SCALAR",
                       "OF",
                       "ADD",
                       "DROP",
                       "FILTER",
                       "EXTRACT",
                       "UnescapedSymbolicName",
                       "IdentifierStart",
                       "IdentifierPart",
                       "EscapedSymbolicName",
                       "SP",
                       "WHITESPACE",
                       "Comment"};

const Names parserRules = {"oC_Cypher",
                           "oC_Statement",
                           "oC_Query",
                           "oC_RegularQuery",
                           "oC_Union",
                           "oC_SingleQuery",
                           "oC_SinglePartQuery",
                           "oC_MultiPartQuery",
                           "oC_UpdatingClause",
                           "oC_ReadingClause",
                           "oC_Match",
                           "oC_Unwind",
                           "oC_Merge",
                           "oC_MergeAction",
                           "oC_Create",
                           "oC_Set",
                           "oC_SetItem",
                           "oC_Delete",
                           "oC_Remove",
                           "oC_RemoveItem",
                           "oC_InQueryCall",
                           "oC_StandaloneCall",
                           "oC_YieldItems",
                           "oC_YieldItem",
                           "oC_With",
                           "oC_Return",
                           "oC_ProjectionBody",
                           "oC_ProjectionItems",
                           "oC_ProjectionItem",
                           "oC_Order",
                           "oC_Skip",
                           "oC_Limit",
                           "oC_SortItem",
                           "oC_Where",
                           "oC_Pattern",
                           "oC_PatternPart",
                           "oC_AnonymousPatternPart",
                           "oC_ShortestPathPattern",
                           "oC_PatternElement",
                           "oC_RelationshipsPattern",
                           "oC_NodePattern",
                           "oC_PatternElementChain",
                           "oC_RelationshipPattern",
                           "oC_RelationshipDetail",
                           "oC_Properties",
                           "oC_RelationshipTypes",
                           "oC_NodeLabels",
                           "oC_NodeLabel",
                           "oC_RangeLiteral",
                           "oC_LabelName",
                           "oC_RelTypeName",
                           "oC_PropertyExpression",
                           "oC_Expression",
                           "oC_OrExpression",
                           "oC_XorExpression",
                           "oC_AndExpression",
                           "oC_NotExpression",
                           "oC_ComparisonExpression",
                           "oC_PartialComparisonExpression",
                           "oC_StringListNullPredicateExpression",
                           "oC_StringPredicateExpression",
                           "oC_ListPredicateExpression",
                           "oC_NullPredicateExpression",
                           "oC_AddOrSubtractExpression",
                           "oC_MultiplyDivideModuloExpression",
                           "oC_PowerOfExpression",
                           "oC_UnaryAddOrSubtractExpression",
                           "oC_ListOperatorExpression",
                           "oC_PropertyOrLabelsExpression",
                           "oC_PropertyLookup",
                           "oC_Atom",
                           "oC_CaseExpression",
                           "oC_CaseAlternative",
                           "oC_ListComprehension",
                           "oC_PatternComprehension",
                           "oC_Quantifier",
                           "oC_FilterExpression",
                           "oC_PatternPredicate",
                           "oC_ParenthesizedExpression",
                           "oC_IdInColl",
                           "oC_FunctionInvocation",
                           "oC_FunctionName",
                           "oC_ExistentialSubquery",
                           "oC_ExplicitProcedureInvocation",
                           "oC_ImplicitProcedureInvocation",
                           "oC_ProcedureResultField",
                           "oC_ProcedureName",
                           "oC_Namespace",
                           "oC_Variable",
                           "oC_Literal",
                           "oC_BooleanLiteral",
                           "oC_NumberLiteral",
                           "oC_IntegerLiteral",
                           "oC_DoubleLiteral",
                           "oC_ListLiteral",
                           "oC_MapLiteral",
                           "oC_PropertyKeyName",
                           "oC_Parameter",
                           "oC_SchemaName",
                           "oC_ReservedWord",
                           "oC_SymbolicName",
                           "oC_LeftArrowHead",
                           "oC_RightArrowHead",
                           "oC_Dash"};

const Names fragments = {"FF",        "EscapedSymbolicName_0",
                         "RS",        "ID_Continue",
                         "Comment_1", "StringLiteral_1",
                         "Comment_3", "Comment_2",
                         "GS",        "FS",
                         "CR",        "Sc",
                         "SPACE",     "Pc",
                         "TAB",       "StringLiteral_0",
                         "LF",        "VT",
                         "US",        "ID_Start"};

class Vocabulary : public testing::Test {
 protected:
  Pipeline pipeline{""};
};

void expectVocabulary(const antlr4::dfa::Vocabulary& vocabulary) {
  EXPECT_EQ(vocabulary.getMaxTokenType(), 129U);
  EXPECT_EQ(vocabulary.getLiteralName(0), "");
  EXPECT_EQ(vocabulary.getSymbolicName(0), "");
  for (std::size_t type = 1; type <= 45; ++type) {
    EXPECT_EQ(vocabulary.getLiteralName(type), literals.at(type - 1));
    EXPECT_EQ(vocabulary.getSymbolicName(type), "");
  }
  for (std::size_t type = 46; type <= 129; ++type) {
    EXPECT_EQ(vocabulary.getLiteralName(type), type == 106 ? "'0'" : "");
    EXPECT_EQ(vocabulary.getSymbolicName(type), symbols.at(type - 46));
  }
}

TEST_F(Vocabulary, IsTheSameInLexerAndParser) {
  ASSERT_EQ(literals.size(), 45U);
  ASSERT_EQ(symbols.size(), 84U);
  expectVocabulary(pipeline.lexer.getVocabulary());
  expectVocabulary(pipeline.parser.getVocabulary());
}

TEST_F(Vocabulary, NamesTheParserRulesInOrder) {
  ASSERT_EQ(parserRules.size(), 104U);
  EXPECT_EQ(pipeline.parser.getRuleNames(), parserRules);
}

TEST_F(Vocabulary, NamesTheLexerRulesInOrderWithTheFragmentsLast) {
  Names lexerRules;
  for (std::size_t i = 0; i < literals.size(); ++i) {
    lexerRules.push_back("T__" + std::to_string(i));
  }
  lexerRules.insert(lexerRules.end(), symbols.begin(), symbols.end());
  lexerRules.insert(lexerRules.end(), fragments.begin(), fragments.end());
  ASSERT_EQ(lexerRules.size(), 149U);
  EXPECT_EQ(pipeline.lexer.getRuleNames(), lexerRules);
}

TEST_F(Vocabulary, NamesGrammarChannelsAndMode) {
  EXPECT_EQ(pipeline.lexer.getGrammarFileName(), "Cypher.g4");
  EXPECT_EQ(pipeline.parser.getGrammarFileName(), "Cypher.g4");
  EXPECT_EQ(pipeline.lexer.getChannelNames(), (Names{"DEFAULT_TOKEN_CHANNEL", "HIDDEN"}));
  EXPECT_EQ(pipeline.lexer.getModeNames(), Names{"DEFAULT_MODE"});
}

}  // namespace
