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

// NOLINTNEXTLINE(cppcoreguidelines-macro-usage): only a macro makes a text of a name.
#define RULE(Name) std::string("oC_") + #Name,
const Names parserRules = {
#include "Rules.inc"
};
#undef RULE

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
