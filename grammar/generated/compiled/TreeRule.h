// Written by grammar/compile_grammar.py from grammar/Cypher.g4; not to be edited.
#pragma once

#include <array>
#include <cstdint>

namespace vorn {

/// The rules whose nodes stand in a SyntaxTree.
enum class TreeRule : std::uint8_t {
  oC_Union,
  oC_Unwind,
  oC_With,
  oC_ProjectionItems,
  oC_ProjectionItem,
  oC_PatternPart,
  oC_NodePattern,
  oC_RelationshipDetail,
  oC_LabelName,
  oC_Expression,
  oC_PropertyOrLabelsExpression,
  oC_Atom,
  oC_ListComprehension,
  oC_PatternComprehension,
  oC_Quantifier,
  oC_PatternPredicate,
  oC_ExistentialSubquery,
  oC_Variable,
  oC_PropertyKeyName,
};

/// By the index of a parser rule: its TreeRule, or -1.
constexpr std::array<std::int8_t, 104> treeRuleOfParserRule = {
    -1, -1, -1, -1, 0, -1, -1, -1, -1, -1, -1, 1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, 2,
    -1, -1, 3, 4, -1, -1, -1, -1, -1, -1, 5, -1, -1, -1, -1, 6, -1, -1, 7, -1, -1, -1, -1, -1, 8,
    -1, -1, 9, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, 10, -1, 11, -1, -1, 12,
    13, 14, -1, 15, -1, -1, -1, -1, 16, -1, -1, -1, -1, -1, 17, -1, -1, -1, -1, -1, -1, -1, 18, -1,
    -1, -1, -1, -1, -1, -1,
};

}  // namespace vorn
