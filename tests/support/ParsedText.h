#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "support/Pipeline.h"

/// The parse tree of one text, parsed as a query or as an expression.
class ParsedText {
 public:
  static ParsedText ofQuery(std::string_view utf8) {
    ParsedText tree(utf8);
    tree.root = tree.pipeline->parser.oC_Cypher();
    return tree;
  }

  static ParsedText ofExpression(std::string_view utf8) {
    ParsedText tree(utf8);
    tree.root = tree.pipeline->parser.oC_Expression();
    return tree;
  }

  /// All contexts of one rule in the order of the text, outer contexts before inner ones.
  template <typename Context>
  std::vector<Context*> all() const {
    std::vector<Context*> found;
    collect(root, found);
    return found;
  }

  template <typename Context>
  std::size_t count() const {
    return all<Context>().size();
  }

  /// The texts of all contexts of one rule.
  template <typename Context>
  std::vector<std::string> texts() const {
    std::vector<std::string> texts;
    for (Context* context : all<Context>()) {
      texts.push_back(context->getText());
    }
    return texts;
  }

 private:
  explicit ParsedText(std::string_view utf8) : pipeline(std::make_unique<Pipeline>(utf8)) {}

  template <typename Context>
  static void collect(antlr4::tree::ParseTree* node, std::vector<Context*>& found) {
    if (auto* context = dynamic_cast<Context*>(node)) {
      found.push_back(context);
    }
    for (antlr4::tree::ParseTree* child : node->children) {
      collect(child, found);
    }
  }

  std::unique_ptr<Pipeline> pipeline;
  antlr4::ParserRuleContext* root = nullptr;
};
