#pragma once

#include "Subject.h"

/// The exported functions of one build of the library. Several can be loaded side by side.
class Library : public Subject {
 public:
  /// Throws a std::runtime_error if the library cannot be loaded.
  explicit Library(const std::string& path);
  void call(Function function, const Text& text) const override;

 private:
  decltype(&vorn::GetOutputNamesAndTypes) columns;
  decltype(&vorn::GetVariableUsagesInPropertyFilterOCExpression) usages;
  decltype(&vorn::ReplaceVariableNamesInPropertyFilterOCExpression) renaming;
};
