#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "TreeListener.h"
#include "parser/SyntaxTree.h"

namespace vorn {

enum class Terminals { Skipped, Visited };

/// Tells the listener of entering and leaving each node, in the order of the text and an outer node
/// before those inside it; between them of each token of the first node, if these are visited.
template <Terminals terminals = Terminals::Skipped, typename Listener>
void walk(const SyntaxTree& tree, Listener& listener) {
  std::vector<std::uint32_t> open;
  std::uint32_t token = tree.nodes.empty() ? 0 : tree.nodes.front().first;
  const auto visitBefore = [&](std::uint32_t end) {
    if constexpr (terminals == Terminals::Visited) {
      for (; token < end; ++token) {
        listener.visitTerminal(token);
      }
    }
  };
  const auto leaveBefore = [&](std::size_t next) {
    for (; !open.empty() && tree.nodes[open.back()].end <= next; open.pop_back()) {
      const SyntaxTree::Node& node = tree.nodes[open.back()];
      visitBefore(node.last + 1);
      tellOfLeaving(listener, node);
    }
  };
  for (std::uint32_t next = 0; next < tree.nodes.size(); ++next) {
    leaveBefore(next);
    visitBefore(tree.nodes[next].first);
    tellOfEntering(listener, tree.nodes[next]);
    open.push_back(next);
  }
  leaveBefore(tree.nodes.size());
}

}  // namespace vorn
