// The fallback is the ANTLR runtime's own pipeline: input stream, lexer, token stream, parser,
// tree. It takes the filters that the compiled parser does not take as a whole, and the refused
// queries whose error is asked for. The runtime's prediction decides where a complete expression
// ends, so that the rest is dropped. The runtime's messages say what is wrong.
//
// Four things differ from the plain runtime. None of them changes an answer:
//
// - The lexer follows the compiled automaton (TableLexerSimulator).
//
// - Prediction asks the compiled lookahead first. The prediction cache belongs to the call, so
//   nothing of it stays in the process. Work beyond a bound ends the call (CallPredictor).
//
// - The parser recurses at each level of nesting. The compiled lexer has already found all tokens,
//   so the levels are counted first, and compared with what is left of the stack (NestingLimit).
//
// - A failed allocation leaves nothing behind (AntlrPipeline, CallPredictor, RecogniserTables).
//
// At the end TreeConverter turns the ANTLR tree into the SyntaxTree that the compiled parser would
// have built. The analyses read that one.

#include "antlr/Fallback.h"

#include "antlr/AntlrPipeline.h"
#include "antlr/NestingLimit.h"
#include "antlr/TreeConverter.h"
#include "parser/SyntaxTree.h"

namespace vorn {

void parseExpressionByAntlr(SyntaxTree& tree, antlr4::ANTLRErrorListener& errors) {
  refuseTooDeep(tree.types.data(), tree.tokenCount());
  AntlrPipeline pipeline(tree.text, errors);
  convertNodes(pipeline.parseExpression(), tree);
}

void findErrorInQueryByAntlr(const SyntaxTree& tree, antlr4::ANTLRErrorListener& errors) {
  // A query may hold several filters, so it gets a larger bound.
  constexpr std::size_t bound = 4 * AntlrPipeline::usualBound;
  refuseTooDeep(tree.types.data(), tree.tokenCount());
  AntlrPipeline(tree.text, errors, bound).parseQuery();
}

}  // namespace vorn
