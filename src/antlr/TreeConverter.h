#pragma once

namespace antlr4 {
class ParserRuleContext;
}  // namespace antlr4

namespace vorn {

struct SyntaxTree;

/// Replaces the nodes of `to` by those of an ANTLR tree over the same tokens.
void convertNodes(antlr4::ParserRuleContext& from, SyntaxTree& to);

}  // namespace vorn
