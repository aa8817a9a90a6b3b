// Compares the ANTLR pipeline with one of the plain runtime.

#include <Lexer.h>
#include <ProxyErrorListener.h>
#include <gtest/gtest.h>

#include <string>
#include <type_traits>

#include "antlr/AntlrPipeline.h"
#include "antlr/ThrowingErrorListener.h"
#include "nesting/Repeated.h"
#include "support/Pipeline.h"
#include "support/SyntaxErrors.h"

using vorn::AntlrPipeline;

namespace {

// The lexer that a tree's tokens come from.
antlr4::Lexer& lexerOf(const antlr4::ParserRuleContext& tree) {
  return dynamic_cast<antlr4::Lexer&>(*tree.start->getTokenSource());
}

TEST(AntlrPipeline, IsNeitherCopiedNorMoved) {
  static_assert(!std::is_copy_constructible_v<AntlrPipeline>);
  static_assert(!std::is_move_constructible_v<AntlrPipeline>);
  static_assert(!std::is_copy_assignable_v<AntlrPipeline>);
  static_assert(!std::is_move_assignable_v<AntlrPipeline>);
}

TEST(AntlrPipeline, SharesTheStaticDataOfTheLexer) {
  AntlrPipeline one("RETURN 1");
  AntlrPipeline other("n.a");
  const antlr4::Lexer& itsLexer = lexerOf(one.parseQuery());
  const antlr4::Lexer& otherLexer = lexerOf(other.parseExpression());
  EXPECT_NE(&itsLexer, &otherLexer);
  EXPECT_EQ(&itsLexer.getATN(), &otherLexer.getATN());
  EXPECT_EQ(itsLexer.getSerializedATN().data(), otherLexer.getSerializedATN().data());
}

// The runtime calls listeners in the order of their addresses. So a listener that prints might
// never be called behind the one that throws, unless that one is removed.
TEST(AntlrPipeline, ReportsToTheSharedListenerOnly) {
  AntlrPipeline pipeline("n.a");
  antlr4::Lexer& lexer = lexerOf(pipeline.parseExpression());
  testing::internal::CaptureStdout();
  testing::internal::CaptureStderr();
  antlr4::ProxyErrorListener& listeners = lexer.getErrorListenerDispatch();
  EXPECT_THROW(listeners.syntaxError(&lexer, nullptr, 1, 0, "", nullptr),
               antlr4::ParseCancellationException);
  lexer.removeErrorListener(&ThrowingErrorListener::instance());
  EXPECT_NO_THROW(listeners.syntaxError(&lexer, nullptr, 1, 0, "", nullptr));
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST(AntlrPipeline, BuildsTheTreeOfTheBareRuntime) {
  for (const char* query :
       {"MATCH (n)-[r:R*1..2]->(m) WHERE n.x = 1 RETURN *, count(n)", "CALL a.b", "CREATE (a)",
        "MATCH (a) WITH a MATCH (b) WITH b RETURN [x IN b | x], (a)-[b]-(c)-[d]-(e.f)",
        "RETURN [(a)-[b]-(c) | 1], [(a)], any(x IN y), any(1), count(*), count(a), a.b.c(d)"}) {
    AntlrPipeline pipeline(query);
    Pipeline bare(query);
    EXPECT_EQ(pipeline.parseQuery().toStringTree(&bare.parser),
              bare.parser.oC_Cypher()->toStringTree(&bare.parser))
        << query;
  }
}

TEST(AntlrPipeline, LeavesATextBehindAnExpressionAlone) {
  AntlrPipeline pipeline("n.a RETURN ?");
  EXPECT_EQ(pipeline.parseExpression().getText(), "n.a");
}

TEST(AntlrPipeline, WordsErrorsAsTheBareRuntimeDoes) {
  for (const char* query :
       {"", "?", "RETURN", "RETURN )", "RETURN 1 2", "RETURN 1 AS", "RETURN 1; RETURN 2",
        "MATCH (n RETURN n", "MATCH (n) RETURN {a 1}", "MATCH (n)-[r RETURN n", "MATCH (n) WHERE",
        "RETURN 'a", "RETURN 1\n  FROM x", "CALL a.b( YIELD c", "UNWIND [1] AS RETURN x",
        "RETURN [x IN xs WHERE ]", "RETURN (a)-[b]-(c)-[", "CREATE", "MERGE (a) ON SET a.b = 1"}) {
    EXPECT_EQ(syntaxErrorOfQuery(query), bareSyntaxErrorOfQuery(query)) << query;
    EXPECT_NE(syntaxErrorOfQuery(query), noSyntaxError) << query;
  }
  for (const char* filter : {"",
                             "=",
                             "n.",
                             "n.a = ",
                             "(n",
                             "[1, 2",
                             "{a 1}",
                             "{a: 1",
                             "n.a IS",
                             "n.a IS NOT 1",
                             "CASE WHEN 1 END",
                             "CASE END",
                             "f(a, )",
                             "all(x IN y",
                             "all(1)",
                             "$",
                             "n.a STARTS 'x'",
                             "EXISTS { RETURN }",
                             "n[1..",
                             "-",
                             "NOT"}) {
    EXPECT_EQ(syntaxErrorOfExpression(filter), bareSyntaxErrorOfExpression(filter)) << filter;
    EXPECT_NE(syntaxErrorOfExpression(filter), noSyntaxError) << filter;
  }
}

// Prediction may use the results of one place in another.
TEST(AntlrPipeline, PredictsAsTheBareRuntimeInEachPlaceOfALongText) {
  for (const char* piece : {"(a)-[b]-(c) AND ", "[x IN a] + ", "any(x IN a) OR ", "(a).b = "}) {
    const std::string text = repeated(piece, 20) + "[x IN ";
    EXPECT_EQ(syntaxErrorOfExpression(text), bareSyntaxErrorOfExpression(text)) << piece;
    EXPECT_NE(syntaxErrorOfExpression(text), noSyntaxError) << piece;
  }
}

TEST(ThrowingErrorListener, IsOneForTheProcess) {
  EXPECT_EQ(&ThrowingErrorListener::instance(), &ThrowingErrorListener::instance());
  static_assert(std::is_base_of_v<antlr4::BaseErrorListener, ThrowingErrorListener>);
  static_assert(sizeof(ThrowingErrorListener) == sizeof(antlr4::BaseErrorListener));
}

}  // namespace
