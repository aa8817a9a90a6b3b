#include "antlr/TreeConverter.h"

#include <ParserRuleContext.h>
#include <Token.h>
#include <tree/ParseTreeWalker.h>

#include <array>
#include <cstddef>

#include "CypherBaseListener.h"
#include "CypherParser.h"

namespace vorn {

namespace {

// Stands in for the generated table: the TreeRule of each rule of the grammar, or -1.
constexpr std::array<std::int8_t, CypherParser::RuleOC_Dash + 1> treeRules() {
  std::array<std::int8_t, CypherParser::RuleOC_Dash + 1> rules{};
  for (std::size_t i = 0; i < rules.size(); ++i) {
    rules[i] = -1;
  }
  std::int8_t next = 0;
  for (const std::size_t rule :
       {CypherParser::RuleOC_Union, CypherParser::RuleOC_Unwind, CypherParser::RuleOC_With,
        CypherParser::RuleOC_ProjectionItems, CypherParser::RuleOC_ProjectionItem,
        CypherParser::RuleOC_Expression, CypherParser::RuleOC_PatternPart,
        CypherParser::RuleOC_NodePattern, CypherParser::RuleOC_RelationshipDetail,
        CypherParser::RuleOC_PropertyOrLabelsExpression, CypherParser::RuleOC_Atom,
        CypherParser::RuleOC_ListComprehension, CypherParser::RuleOC_PatternComprehension,
        CypherParser::RuleOC_Quantifier, CypherParser::RuleOC_PatternPredicate,
        CypherParser::RuleOC_ExistentialSubquery, CypherParser::RuleOC_Variable,
        CypherParser::RuleOC_PropertyKeyName, CypherParser::RuleOC_LabelName}) {
    rules[rule] = next++;
  }
  return rules;
}
constexpr auto treeRuleOf = treeRules();

class Flattener final : public CypherBaseListener {
 public:
  void enterEveryRule(antlr4::ParserRuleContext* context) override {
    const std::int8_t rule = treeRuleOf[context->getRuleIndex()];
    if (rule >= 0) {
      open_.push_back(nodes.size());
      nodes.push_back({static_cast<TreeRule>(rule), indexOf(*context->getStart()),
                       indexOf(*context->getStop()), 0});
    }
  }

  void exitEveryRule(antlr4::ParserRuleContext* context) override {
    if (treeRuleOf[context->getRuleIndex()] >= 0) {
      nodes[open_.back()].end = static_cast<std::uint32_t>(nodes.size());
      open_.pop_back();
    }
  }

  std::vector<Node> nodes;

 private:
  static std::uint32_t indexOf(const antlr4::Token& token) {
    return static_cast<std::uint32_t>(token.getTokenIndex());
  }

  std::vector<std::size_t> open_;  // nodes that have not ended
};

}  // namespace

std::vector<Node> flatten(antlr4::ParserRuleContext& tree) {
  Flattener flattener;
  antlr4::tree::ParseTreeWalker::DEFAULT.walk(&flattener, &tree);
  return std::move(flattener.nodes);
}

}  // namespace vorn
