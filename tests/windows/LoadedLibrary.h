#pragma once

#include <windows.h>

#include <string>

#include "vorn/vorn.h"

/// VornLib.dll, loaded while the object lives.
class LoadedLibrary {
 public:
  /// Throws std::runtime_error.
  LoadedLibrary();
  LoadedLibrary(const LoadedLibrary&) = delete;
  LoadedLibrary(LoadedLibrary&&) = delete;
  LoadedLibrary& operator=(const LoadedLibrary&) = delete;
  LoadedLibrary& operator=(LoadedLibrary&&) = delete;
  ~LoadedLibrary();

  static bool isLoaded();

  HMODULE module() const { return handle; }

  decltype(&vorn::GetOutputNamesAndTypes) getOutputNamesAndTypes;
  decltype(&vorn::GetVariableUsagesInPropertyFilterOCExpression) getVariableUsages;
  decltype(&vorn::ReplaceVariableNamesInPropertyFilterOCExpression) replaceVariableNames;

 private:
  HMODULE handle;
};
