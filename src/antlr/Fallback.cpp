// The fallback is the ANTLR runtime's own pipeline: input stream, lexer, token stream, parser,
// tree. Only a filter comes here that the compiled parser does not take as a whole. The runtime's
// prediction decides what is dropped behind a complete expression, and the runtime's words say what
// is wrong.
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

void parseExpressionByAntlr(SyntaxTree& tree) {
  refuseTooDeep(tree.types.data(), tree.tokenCount());
  AntlrPipeline pipeline(tree.text);
  convertNodes(pipeline.parseExpression(), tree);
}

}  // namespace vorn
