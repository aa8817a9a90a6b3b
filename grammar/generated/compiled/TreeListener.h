// Written by grammar/compile_grammar.py from grammar/Cypher.g4; not to be edited.
#pragma once

#include "parser/SyntaxTree.h"

namespace vorn {

/// Hears of nothing. A listener derives from it and has the operations that it needs, which hide the
/// empty ones here; the walk knows its type, so none is virtual.
class TreeListener {
 public:
  void enterOC_Union(const SyntaxTree::Node& /*node*/) {}
  void exitOC_Union(const SyntaxTree::Node& /*node*/) {}
  void enterOC_Unwind(const SyntaxTree::Node& /*node*/) {}
  void exitOC_Unwind(const SyntaxTree::Node& /*node*/) {}
  void enterOC_With(const SyntaxTree::Node& /*node*/) {}
  void exitOC_With(const SyntaxTree::Node& /*node*/) {}
  void enterOC_ProjectionItems(const SyntaxTree::Node& /*node*/) {}
  void exitOC_ProjectionItems(const SyntaxTree::Node& /*node*/) {}
  void enterOC_ProjectionItem(const SyntaxTree::Node& /*node*/) {}
  void exitOC_ProjectionItem(const SyntaxTree::Node& /*node*/) {}
  void enterOC_PatternPart(const SyntaxTree::Node& /*node*/) {}
  void exitOC_PatternPart(const SyntaxTree::Node& /*node*/) {}
  void enterOC_NodePattern(const SyntaxTree::Node& /*node*/) {}
  void exitOC_NodePattern(const SyntaxTree::Node& /*node*/) {}
  void enterOC_RelationshipDetail(const SyntaxTree::Node& /*node*/) {}
  void exitOC_RelationshipDetail(const SyntaxTree::Node& /*node*/) {}
  void enterOC_LabelName(const SyntaxTree::Node& /*node*/) {}
  void exitOC_LabelName(const SyntaxTree::Node& /*node*/) {}
  void enterOC_Expression(const SyntaxTree::Node& /*node*/) {}
  void exitOC_Expression(const SyntaxTree::Node& /*node*/) {}
  void enterOC_PropertyOrLabelsExpression(const SyntaxTree::Node& /*node*/) {}
  void exitOC_PropertyOrLabelsExpression(const SyntaxTree::Node& /*node*/) {}
  void enterOC_Atom(const SyntaxTree::Node& /*node*/) {}
  void exitOC_Atom(const SyntaxTree::Node& /*node*/) {}
  void enterOC_ListComprehension(const SyntaxTree::Node& /*node*/) {}
  void exitOC_ListComprehension(const SyntaxTree::Node& /*node*/) {}
  void enterOC_PatternComprehension(const SyntaxTree::Node& /*node*/) {}
  void exitOC_PatternComprehension(const SyntaxTree::Node& /*node*/) {}
  void enterOC_Quantifier(const SyntaxTree::Node& /*node*/) {}
  void exitOC_Quantifier(const SyntaxTree::Node& /*node*/) {}
  void enterOC_PatternPredicate(const SyntaxTree::Node& /*node*/) {}
  void exitOC_PatternPredicate(const SyntaxTree::Node& /*node*/) {}
  void enterOC_ExistentialSubquery(const SyntaxTree::Node& /*node*/) {}
  void exitOC_ExistentialSubquery(const SyntaxTree::Node& /*node*/) {}
  void enterOC_Variable(const SyntaxTree::Node& /*node*/) {}
  void exitOC_Variable(const SyntaxTree::Node& /*node*/) {}
  void enterOC_PropertyKeyName(const SyntaxTree::Node& /*node*/) {}
  void exitOC_PropertyKeyName(const SyntaxTree::Node& /*node*/) {}
};

template <typename Listener>
void tellOfEntering(Listener& listener, const SyntaxTree::Node& node) {
  switch (node.rule) {
    case TreeRule::oC_Union:
      return listener.enterOC_Union(node);
    case TreeRule::oC_Unwind:
      return listener.enterOC_Unwind(node);
    case TreeRule::oC_With:
      return listener.enterOC_With(node);
    case TreeRule::oC_ProjectionItems:
      return listener.enterOC_ProjectionItems(node);
    case TreeRule::oC_ProjectionItem:
      return listener.enterOC_ProjectionItem(node);
    case TreeRule::oC_PatternPart:
      return listener.enterOC_PatternPart(node);
    case TreeRule::oC_NodePattern:
      return listener.enterOC_NodePattern(node);
    case TreeRule::oC_RelationshipDetail:
      return listener.enterOC_RelationshipDetail(node);
    case TreeRule::oC_LabelName:
      return listener.enterOC_LabelName(node);
    case TreeRule::oC_Expression:
      return listener.enterOC_Expression(node);
    case TreeRule::oC_PropertyOrLabelsExpression:
      return listener.enterOC_PropertyOrLabelsExpression(node);
    case TreeRule::oC_Atom:
      return listener.enterOC_Atom(node);
    case TreeRule::oC_ListComprehension:
      return listener.enterOC_ListComprehension(node);
    case TreeRule::oC_PatternComprehension:
      return listener.enterOC_PatternComprehension(node);
    case TreeRule::oC_Quantifier:
      return listener.enterOC_Quantifier(node);
    case TreeRule::oC_PatternPredicate:
      return listener.enterOC_PatternPredicate(node);
    case TreeRule::oC_ExistentialSubquery:
      return listener.enterOC_ExistentialSubquery(node);
    case TreeRule::oC_Variable:
      return listener.enterOC_Variable(node);
    case TreeRule::oC_PropertyKeyName:
      return listener.enterOC_PropertyKeyName(node);
  }
}

template <typename Listener>
void tellOfLeaving(Listener& listener, const SyntaxTree::Node& node) {
  switch (node.rule) {
    case TreeRule::oC_Union:
      return listener.exitOC_Union(node);
    case TreeRule::oC_Unwind:
      return listener.exitOC_Unwind(node);
    case TreeRule::oC_With:
      return listener.exitOC_With(node);
    case TreeRule::oC_ProjectionItems:
      return listener.exitOC_ProjectionItems(node);
    case TreeRule::oC_ProjectionItem:
      return listener.exitOC_ProjectionItem(node);
    case TreeRule::oC_PatternPart:
      return listener.exitOC_PatternPart(node);
    case TreeRule::oC_NodePattern:
      return listener.exitOC_NodePattern(node);
    case TreeRule::oC_RelationshipDetail:
      return listener.exitOC_RelationshipDetail(node);
    case TreeRule::oC_LabelName:
      return listener.exitOC_LabelName(node);
    case TreeRule::oC_Expression:
      return listener.exitOC_Expression(node);
    case TreeRule::oC_PropertyOrLabelsExpression:
      return listener.exitOC_PropertyOrLabelsExpression(node);
    case TreeRule::oC_Atom:
      return listener.exitOC_Atom(node);
    case TreeRule::oC_ListComprehension:
      return listener.exitOC_ListComprehension(node);
    case TreeRule::oC_PatternComprehension:
      return listener.exitOC_PatternComprehension(node);
    case TreeRule::oC_Quantifier:
      return listener.exitOC_Quantifier(node);
    case TreeRule::oC_PatternPredicate:
      return listener.exitOC_PatternPredicate(node);
    case TreeRule::oC_ExistentialSubquery:
      return listener.exitOC_ExistentialSubquery(node);
    case TreeRule::oC_Variable:
      return listener.exitOC_Variable(node);
    case TreeRule::oC_PropertyKeyName:
      return listener.exitOC_PropertyKeyName(node);
  }
}

}  // namespace vorn
