#include "antlr/TreeConverter.h"

#include <ParserRuleContext.h>
#include <Token.h>
#include <tree/ParseTreeWalker.h>

#include <cstdint>
#include <vector>

#include "CypherBaseListener.h"
#include "parser/SyntaxTree.h"

namespace vorn {

namespace {

class TreeConverter final : public CypherBaseListener {
 public:
  explicit TreeConverter(std::pmr::vector<SyntaxTree::Node>& nodes) : nodes_(nodes) {}

  void enterEveryRule(antlr4::ParserRuleContext* context) override {
    if (const std::int8_t rule = treeRuleOf(*context); rule >= 0) {
      nodes_.push_back({static_cast<TreeRule>(rule), indexOf(*context->getStart()),
                        indexOf(*context->getStop()), 0, open_});
      open_ = static_cast<std::uint32_t>(nodes_.size() - 1);
    }
  }

  void exitEveryRule(antlr4::ParserRuleContext* context) override {
    if (treeRuleOf(*context) >= 0) {
      nodes_[open_].end = static_cast<std::uint32_t>(nodes_.size());
      open_ = nodes_[open_].parent;
    }
  }

 private:
  static std::int8_t treeRuleOf(const antlr4::ParserRuleContext& context) {
    return treeRuleOfParserRule.at(context.getRuleIndex());
  }

  static std::uint32_t indexOf(const antlr4::Token& token) {
    return static_cast<std::uint32_t>(token.getTokenIndex());
  }

  std::pmr::vector<SyntaxTree::Node>& nodes_;
  std::uint32_t open_ = SyntaxTree::none;  // the innermost node that has not ended
};

}  // namespace

void convertNodes(antlr4::ParserRuleContext& from, SyntaxTree& to) {
  to.nodes.clear();
  TreeConverter converter(to.nodes);
  antlr4::tree::ParseTreeWalker::DEFAULT.walk(&converter, &from);
}

}  // namespace vorn
