#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "vorn/vorn.h"

namespace compare {

using Renames = std::unordered_map<vorn::WideString, vorn::WideString>;

/// What GetOutputNamesAndTypes answers.
struct Columns {
  std::int32_t status = 0;
  std::vector<std::pair<vorn::WideString, vorn::CypherType>> columns;
};

/// How a function that throws ends.
enum class Ending { Answer, Forbidden, Error, Bound };

/// What GetVariableUsagesInPropertyFilterOCExpression answers.
struct Usages {
  Ending ending = Ending::Answer;
  std::string message;
  std::map<vorn::WideString, vorn::VariableUsage> usages;
};

/// What ReplaceVariableNamesInPropertyFilterOCExpression answers.
struct Renamed {
  Ending ending = Ending::Answer;
  std::string message;
  vorn::WideString text;
};

}  // namespace compare
