#pragma once

namespace antlr4 {
class ANTLRErrorListener;
}  // namespace antlr4

namespace vorn {

struct SyntaxTree;

/// Parses the tree's text as an expression with the ANTLR pipeline, and drops what stands behind a
/// complete one. Meant for a text that the compiled parser does not take as a whole. The first
/// lexical or syntax error goes to `errors`, which must throw. Throws std::length_error if the text
/// nests too deeply for the stack or takes too long.
void parseExpressionByAntlr(SyntaxTree& tree, antlr4::ANTLRErrorListener& errors);

/// Tells `errors`, which must throw, of the first error in a query that the compiled parser
/// refuses. Throws std::length_error if the text nests too deeply for the stack or takes too long.
void findErrorInQueryByAntlr(const SyntaxTree& tree, antlr4::ANTLRErrorListener& errors);

}  // namespace vorn
