#pragma once

#include <cstddef>
#include <cstdint>
#include <memory_resource>
#include <string_view>
#include <vector>

#include "TreeRule.h"

namespace vorn {

/// A text in tokens, and where in it the rules stand that some analysis asks for. Neither refers to
/// the other by pointers: a node is a range of tokens, a token a place in the text.
struct SyntaxTree {
  struct Node {
    TreeRule rule{};
    std::uint32_t first = 0;      // token
    std::uint32_t last = 0;       // token, not before the first
    std::uint32_t end = 0;        // the node behind the last one inside this one
    std::uint32_t parent = none;  // the node around this one
  };
  static constexpr std::uint32_t none = 0xFFFFFFFF;

  /// The type of what stands behind the last token.
  static constexpr std::uint8_t endOfText = 0;
  /// How many tokens ahead may be asked for, whatever is left of the text.
  static constexpr std::size_t longestLookahead = 3;

  /// The memory must outlive the tree, and the text too.
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

  std::string_view text;                   // UTF-8, which must outlive the tree
  std::pmr::vector<std::uint8_t> types;    // of the tokens, then the end of the text, several times
  std::pmr::vector<std::uint32_t> starts;  // of the tokens in bytes, then the end of the last one
  bool isWhole = false;                    // no character of the text is outside of all tokens
  std::pmr::vector<Node> nodes;            // in the order of the text, each before those inside it

 private:
  [[nodiscard]] std::size_t placeOf(const Node& node) const {
    return static_cast<std::size_t>(&node - nodes.data());
  }
};

}  // namespace vorn
