#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "vorn/vorn.h"

/// The three functions, linked or looked up in a loaded library.
struct Calls {
  decltype(&vorn::GetOutputNamesAndTypes) columns;
  decltype(&vorn::GetVariableUsagesInPropertyFilterOCExpression) usages;
  decltype(&vorn::ReplaceVariableNamesInPropertyFilterOCExpression) renaming;
};

/// One call that a host may make.
struct Question {
  enum class Kind { columns, usages, renaming };
  Kind kind;
  vorn::WideString text;

  // GoogleTest would print the bytes of the object, which differ in each run.
  friend std::ostream& operator<<(std::ostream& out, const Question& question) {
    return out << "text of " << question.text.size() << " units";
  }
};

/// The answer or the exception that a host gets, as one line that can be compared.
std::string answer(const Calls& calls, const Question& question);

/// Good and bad texts for all three functions.
const std::vector<Question>& questions();

/// The names that a question of renaming replaces.
const std::unordered_map<vorn::WideString, vorn::WideString>& renames();
