#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "TreeListener.h"
#include "parser/SyntaxTree.h"

namespace vorn {

/// Whether a walk tells the listener of tokens.
enum class Terminals { Skipped, Visited };

/// Tells the listener of entering and leaving each node, in the order of the text, and an outer
/// node before those inside it. With Terminals::Visited it also tells of each token of the first
/// node, in its place between them.
template <Terminals terminals = Terminals::Skipped, typename Listener>
void walk(const SyntaxTree& tree, Listener& listener) {
  const auto& nodes = tree.nodes;
  std::uint32_t token = nodes.empty() ? 0 : nodes.front().first;
  const auto visitBefore = [&](std::uint32_t end) {
    if constexpr (terminals == Terminals::Visited) {
      for (; token < end; ++token) {
        listener.visitTerminal(token);
      }
    }
  };
  for (std::uint32_t place = 0; place < nodes.size(); ++place) {
    visitBefore(nodes[place].first);
    tellOfEntering(listener, nodes[place]);
    for (std::uint32_t ended = place; ended != SyntaxTree::none && nodes[ended].end == place + 1;
         ended = nodes[ended].parent) {
      visitBefore(nodes[ended].last + 1);
      tellOfLeaving(listener, nodes[ended]);
    }
  }
}

}  // namespace vorn
