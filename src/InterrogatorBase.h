#pragma once

#include <string>

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

  [[noreturn]] static void refuseAsTooDeep();

  std::string utf8Text;
  SyntaxTree tree;  // refers to the text
};

}  // namespace vorn
