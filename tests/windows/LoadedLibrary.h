#pragma once

#include <windows.h>

#include <string_view>

#include "vorn/vorn.h"

/// VornLib.dll, loaded while the object lives.
class LoadedLibrary {
 public:
  /// Throws std::runtime_error if the library cannot be loaded.
  LoadedLibrary();
  LoadedLibrary(const LoadedLibrary&) = delete;
  LoadedLibrary(LoadedLibrary&&) = delete;
  LoadedLibrary& operator=(const LoadedLibrary&) = delete;
  LoadedLibrary& operator=(LoadedLibrary&&) = delete;
  ~LoadedLibrary();

  static bool isLoaded();

  HMODULE module() const { return handle; }

  /// Makes the library call `replacement` in place of the imported function with this mangled name.
  /// Throws std::runtime_error if the library does not import it.
  void replaceImport(std::string_view mangledName, void* replacement) const;

  decltype(&vorn::GetOutputNamesAndTypes) getOutputNamesAndTypes;
  decltype(&vorn::GetVariableUsagesInPropertyFilterOCExpression) getVariableUsages;
  decltype(&vorn::ReplaceVariableNamesInPropertyFilterOCExpression) replaceVariableNames;

 private:
  HMODULE handle;
};
