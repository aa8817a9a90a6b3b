#include "vorn/vorn.h"

#include "CypherInterrogator.h"
#include "PropertyFilterExpressionInterrogator.h"

namespace vorn {

// Only this function reports a failure by a status. The other two throw.
std::int32_t GetOutputNamesAndTypes(
    const WideString& query, std::vector<std::pair<WideString, CypherType>>& columns) noexcept {
  try {
    CypherInterrogator interrogator(query);
    columns = std::move(interrogator.getResultColumnNamesAndTypes());
    return 0;
  } catch (...) {
    return 1;
  }
}

std::map<WideString, VariableUsage> GetVariableUsagesInPropertyFilterOCExpression(
    const WideString& expression) {
  return PropertyFilterExpressionInterrogator(expression).computeVariablesUsages();
}

WideString ReplaceVariableNamesInPropertyFilterOCExpression(
    const WideString& expression, const std::unordered_map<WideString, WideString>& renames) {
  return PropertyFilterExpressionInterrogator(expression).replaceVariableNames(renames);
}

}  // namespace vorn
