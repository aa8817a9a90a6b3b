#pragma once

#include <cstddef>
#include <cstdint>
#include <memory_resource>
#include <string_view>
#include <vector>

#include "TreeRule.h"

namespace vorn {

/// The tokens of a text, and a node for each rule that an analysis asks for. A node is a range of
/// tokens, a token is a type and a place in the text. Both are referred to by their indices.
struct SyntaxTree {
  struct Node {
    TreeRule rule{};
    std::uint32_t first = 0;      // token
    std::uint32_t last = 0;       // token, never before `first`
    std::uint32_t end = 0;        // the node behind the last one inside this one
    std::uint32_t parent = none;  // the node around this one, or `none`
  };
  static constexpr std::uint32_t none = 0xFFFFFFFF;

  /// The token type of the end of the text.
  static constexpr std::uint8_t endOfText = 0;
  /// How many tokens ahead may be asked for, even at the end of the text.
  static constexpr std::size_t longestLookahead = 3;

  /// The text and the memory must outlive the tree.
  explicit SyntaxTree(std::string_view utf8,
                      std::pmr::memory_resource* memory = std::pmr::get_default_resource())
      : text(utf8), types(memory), starts(memory), nodes(memory) {}

  [[nodiscard]] std::size_t tokenCount() const { return starts.size() - 1; }

  [[nodiscard]] std::string_view textOf(std::size_t token) const {
    return text.substr(starts[token], starts[token + 1] - starts[token]);
  }

  [[nodiscard]] std::string_view textOf(const Node& node) const {
    return text.substr(starts[node.first], starts[node.last + std::size_t{1}] - starts[node.first]);
  }

  /// Calls the action with each node directly inside another one, in the order of the text.
  template <typename Action>
  void forEachChild(const Node& parent, const Action& action) const {
    for (std::size_t at = placeOf(parent) + 1; at < parent.end; at = nodes[at].end) {
      action(nodes[at]);
    }
  }

  /// The first node of a rule directly inside another one, or nullptr.
  [[nodiscard]] const Node* child(const Node& parent, TreeRule rule) const {
    for (std::size_t at = placeOf(parent) + 1; at < parent.end; at = nodes[at].end) {
      if (nodes[at].rule == rule) {
        return &nodes[at];
      }
    }
    return nullptr;
  }

  std::string_view text;                   // UTF-8
  std::pmr::vector<std::uint8_t> types;    // of the tokens, then endOfText several times
  std::pmr::vector<std::uint32_t> starts;  // of the tokens in bytes, then the end of the last one
  bool isWhole = false;                    // the lexer has come to the end of the text
  std::pmr::vector<Node> nodes;            // in the order of the text, each before those inside it

 private:
  [[nodiscard]] std::size_t placeOf(const Node& node) const {
    return static_cast<std::size_t>(&node - nodes.data());
  }
};

}  // namespace vorn
