#pragma once

#include <array>
#include <cstddef>
#include <memory_resource>
#include <string>
#include <string_view>

#include "parser/SyntaxTree.h"
#include "vorn/vorn.h"

namespace vorn {

/// Owns one text and what it is parsed into. The derived classes choose the start rule and compute
/// answers from the tree.
class InterrogatorBase {
 public:
  InterrogatorBase(const InterrogatorBase&) = delete;
  InterrogatorBase& operator=(const InterrogatorBase&) = delete;
  InterrogatorBase(InterrogatorBase&&) = delete;
  InterrogatorBase& operator=(InterrogatorBase&&) = delete;
  virtual ~InterrogatorBase();

 protected:
  /// Divides the text into tokens.
  explicit InterrogatorBase(const WideString& text);

  /// The same for a text that is well-formed UTF-8 already. It must outlive the interrogator.
  explicit InterrogatorBase(std::string_view utf8);

  std::string utf8Text;  // empty if the text was given so

 private:
  // Holds the tree of a short text, which then needs no block from the heap.
  std::array<std::byte, 2 * std::size_t{1024}> firstMemory;
  std::pmr::monotonic_buffer_resource treeMemory{firstMemory.data(), firstMemory.size()};

 protected:
  SyntaxTree tree;  // refers to the text
};

}  // namespace vorn
