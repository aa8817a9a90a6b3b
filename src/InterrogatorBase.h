#pragma once

#include <array>
#include <cstddef>
#include <memory_resource>
#include <string>
#include <string_view>

#include "parser/SyntaxTree.h"
#include "vorn/vorn.h"

namespace vorn {

/// One text, its tokens and its tree. The derived classes choose the start rule and compute answers
/// from the tree.
class InterrogatorBase {
 public:
  InterrogatorBase(const InterrogatorBase&) = delete;
  InterrogatorBase& operator=(const InterrogatorBase&) = delete;
  InterrogatorBase(InterrogatorBase&&) = delete;
  InterrogatorBase& operator=(InterrogatorBase&&) = delete;
  virtual ~InterrogatorBase();

 protected:
  /// Converts the text to UTF-8 and divides it into tokens.
  explicit InterrogatorBase(const WideString& text);

  /// The same for well-formed UTF-8, which must outlive the interrogator.
  explicit InterrogatorBase(std::string_view utf8);

  std::string utf8Text;  // empty if the text was given in UTF-8

 private:
  // The tree of a short text fits in here and takes nothing from the heap.
  std::array<std::byte, 2 * std::size_t{1024}> firstMemory;
  std::pmr::monotonic_buffer_resource treeMemory{firstMemory.data(), firstMemory.size()};

 protected:
  SyntaxTree tree;  // refers to utf8Text, or to the text that was given in UTF-8
};

}  // namespace vorn
