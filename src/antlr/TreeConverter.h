#pragma once

#include <cstdint>
#include <vector>

namespace antlr4 {
class ParserRuleContext;
}  // namespace antlr4

namespace vorn {

// Stands in for what the parser's tree and the table of its rules will declare.
enum class TreeRule : std::uint8_t {
  Union,
  Unwind,
  With,
  ProjectionItems,
  ProjectionItem,
  Expression,
  PatternPart,
  NodePattern,
  RelationshipDetail,
  PropertyOrLabelsExpression,
  Atom,
  ListComprehension,
  PatternComprehension,
  Quantifier,
  PatternPredicate,
  ExistentialSubquery,
  Variable,
  PropertyKeyName,
  LabelName
};
struct Node {
  TreeRule rule;
  std::uint32_t first;
  std::uint32_t last;
  std::uint32_t end;
};

/// The nodes of the ANTLR tree that the analyses ask for, in text order.
std::vector<Node> flatten(antlr4::ParserRuleContext& tree);

}  // namespace vorn
