#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "parser/CompiledLexer.h"
#include "parser/CompiledParser.h"
#include "parser/SyntaxTree.h"

/// A text with the tokens of the compiled lexer and the nodes of the compiled parser.
class CompiledText {
 public:
  explicit CompiledText(std::string utf8) : text_(std::move(utf8)), tree_(text_) {
    vorn::tokenise(tree_);
  }

  // The tree refers to the text.
  CompiledText(const CompiledText&) = delete;
  CompiledText& operator=(const CompiledText&) = delete;
  CompiledText(CompiledText&&) = delete;
  CompiledText& operator=(CompiledText&&) = delete;
  ~CompiledText() = default;

  vorn::Verdict parseQuery() { return vorn::parseQuery(tree_); }
  vorn::Verdict parseExpression() { return vorn::parseExpression(tree_); }

  [[nodiscard]] const vorn::SyntaxTree& tree() const { return tree_; }
  [[nodiscard]] vorn::SyntaxTree& tree() { return tree_; }

  [[nodiscard]] std::vector<std::size_t> types() const {
    return {tree_.types.begin(),
            tree_.types.begin() + static_cast<std::ptrdiff_t>(tree_.tokenCount())};
  }

  [[nodiscard]] std::vector<std::string> tokenTexts() const {
    std::vector<std::string> texts;
    for (std::size_t token = 0; token < tree_.tokenCount(); ++token) {
      texts.emplace_back(tree_.textOf(token));
    }
    return texts;
  }

  /// The texts of all nodes of a rule, in the order of the text.
  [[nodiscard]] std::vector<std::string> texts(vorn::TreeRule rule) const {
    std::vector<std::string> texts;
    for (const vorn::SyntaxTree::Node& node : tree_.nodes) {
      if (node.rule == rule) {
        texts.emplace_back(tree_.textOf(node));
      }
    }
    return texts;
  }

 private:
  std::string text_;
  vorn::SyntaxTree tree_;
};
