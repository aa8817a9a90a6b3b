#pragma once

namespace vorn {

struct SyntaxTree;

/// Parses the tree's text as an expression by the ANTLR pipeline, which drops what stands behind a
/// complete one. For a text that the compiled parser does not take as a whole.
/// Throws antlr4::ParseCancellationException at the first lexical or syntax error, and
/// std::length_error if the text nests too deeply for the stack or takes too long.
void parseExpressionByAntlr(SyntaxTree& tree);

}  // namespace vorn
