#pragma once

#include <windows.h>

#include <string_view>

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

  /// Has the library call `replacement` for a function of this mangled name that it imports.
  /// Throws std::runtime_error if it imports none.
  void replaceImport(std::string_view mangledName, void* replacement) const;

  decltype(&vorn::GetOutputNamesAndTypes) getOutputNamesAndTypes;
  decltype(&vorn::GetVariableUsagesInPropertyFilterOCExpression) getVariableUsages;
  decltype(&vorn::ReplaceVariableNamesInPropertyFilterOCExpression) replaceVariableNames;

 private:
  HMODULE handle;
};
