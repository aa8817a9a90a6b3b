#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <unordered_map>

#include "InterrogatorBase.h"

namespace antlr4 {
class ANTLRErrorListener;
}  // namespace antlr4

namespace vorn {

/// A property filter, which is one expression: parsed by the constructor, asked for its variables
/// or rewritten with new names for them.
class PropertyFilterExpressionInterrogator : private InterrogatorBase {
 public:
  /// Throws antlr4::ParseCancellationException if `expression` begins with no openCypher
  /// expression, and std::length_error if it nests too deeply for the stack.
  explicit PropertyFilterExpressionInterrogator(const WideString& expression);

  /// The same for a filter in well-formed UTF-8, which must outlive the interrogator. The listener,
  /// which must throw, is told of the error instead.
  PropertyFilterExpressionInterrogator(std::string_view expression,
                                       antlr4::ANTLRErrorListener& errors);

  /// Throws std::logic_error at the first element that has no place in a property filter. Stores
  /// its type, "OC_Quantifier" for instance, if there is a place for it.
  [[nodiscard]] std::map<WideString, VariableUsage> computeVariablesUsages(
      std::string_view* forbiddenType = nullptr) const;

  /// Does not validate.
  [[nodiscard]] WideString replaceVariableNames(
      const std::unordered_map<WideString, WideString>& renames) const;

  /// The same in UTF-8, with names that are back-quoted on both sides.
  [[nodiscard]] std::string replaceQuotedNames(
      const std::unordered_map<std::string, std::string>& renames) const;

  /// Where the expression ends, in bytes of UTF-8: at the end of the text, if nothing but white
  /// space stands behind its last token.
  [[nodiscard]] std::size_t expressionEnd() const;

 private:
  void parse(antlr4::ANTLRErrorListener& errors);
};

}  // namespace vorn
