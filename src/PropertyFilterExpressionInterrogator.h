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

/// A property filter, which is one expression. The constructor parses it; the operations find its
/// variables or rename them.
class PropertyFilterExpressionInterrogator : private InterrogatorBase {
 public:
  /// Throws antlr4::ParseCancellationException if `expression` does not begin with an openCypher
  /// expression, and std::length_error if it nests too deeply for the stack or takes too long.
  explicit PropertyFilterExpressionInterrogator(const WideString& expression);

  /// The same for a filter in well-formed UTF-8, which must outlive the interrogator. A syntax
  /// error goes to `errors`, which must throw.
  PropertyFilterExpressionInterrogator(std::string_view expression,
                                       antlr4::ANTLRErrorListener& errors);

  /// Throws std::logic_error at the first element that a property filter must not hold. Before that
  /// stores the type of the element, such as "OC_Quantifier", unless `forbiddenType` is null.
  [[nodiscard]] std::map<WideString, VariableUsage> computeVariablesUsages(
      std::string_view* forbiddenType = nullptr) const;

  /// Does not validate.
  [[nodiscard]] WideString replaceVariableNames(
      const std::unordered_map<WideString, WideString>& renames) const;

  /// The same in UTF-8. Old and new names must be back-quoted.
  [[nodiscard]] std::string replaceQuotedNames(
      const std::unordered_map<std::string, std::string>& renames) const;

  /// The end of the expression as an offset into the UTF-8. White space that ends the text counts
  /// as part of the expression.
  [[nodiscard]] std::size_t expressionEnd() const;

 private:
  void parse(antlr4::ANTLRErrorListener& errors);
};

}  // namespace vorn
