#pragma once

#include <map>
#include <unordered_map>

#include "InterrogatorBase.h"

namespace vorn {

/// A property filter, which is one expression: parsed by the constructor, asked for its variables
/// or rewritten with new names for them.
class PropertyFilterExpressionInterrogator : private InterrogatorBase {
 public:
  /// Throws antlr4::ParseCancellationException if `expression` begins with no openCypher
  /// expression, and std::length_error if it nests too deeply for the stack.
  explicit PropertyFilterExpressionInterrogator(const WideString& expression);

  /// Throws std::logic_error at the first element that has no place in a property filter.
  [[nodiscard]] std::map<WideString, VariableUsage> computeVariablesUsages() const;

  /// Does not validate.
  [[nodiscard]] WideString replaceVariableNames(
      const std::unordered_map<WideString, WideString>& renames) const;
};

}  // namespace vorn
