#pragma once

namespace antlr4 {
class ParserRuleContext;
}  // namespace antlr4

namespace vorn {

struct SyntaxTree;

/// Makes nodes of the tree of those in an ANTLR tree over the same tokens, in place of its own.
void convertNodes(antlr4::ParserRuleContext& from, SyntaxTree& to);

}  // namespace vorn
