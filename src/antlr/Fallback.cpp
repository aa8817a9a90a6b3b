// The fallback is the ANTLR runtime's own pipeline: input stream, lexer, token stream, parser,
// tree. A filter comes here that the compiled parser does not take as a whole, and a refused query
// if its error is asked for. The runtime's prediction decides what is dropped behind a complete
// expression, and the runtime's words say what is wrong.
//
// Four things differ from the runtime as it is, none of which changes an answer:
//
// - The lexer follows the compiled automaton (TableLexerSimulator).
//
// - Prediction asks the compiled lookahead first, and what it finds out belongs to the call, so
//   nothing of it stays in the process. Work beyond a bound ends the call (CallPredictor).
//
// - The parser recurses with each level of nesting. The compiled lexer has all tokens by now, so
//   one look at the levels tells whether the stack has room for them (NestingLimit).
//
// - A failed allocation leaves nothing behind (AntlrPipeline, CallPredictor, RecogniserTables).
//
// In the end the tree is turned into the one that the compiled parser would have built
// (TreeConverter), from which the analyses read.

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
  // A query holds several filters. The function that answers by a status alone never comes here.
  constexpr std::size_t bound = 4 * AntlrPipeline::usualBound;
  refuseTooDeep(tree.types.data(), tree.tokenCount());
  AntlrPipeline(tree.text, errors, bound).parseQuery();
}

}  // namespace vorn
