#pragma once

#include "robustness/Questions.h"

/// The shared library, loaded while the object lives. If it was not loaded before, the next call is
/// the first one of the library.
class LoadedLibrary {
 public:
  /// Throws a std::runtime_error if the library cannot be loaded.
  LoadedLibrary();
  LoadedLibrary(const LoadedLibrary&) = delete;
  LoadedLibrary& operator=(const LoadedLibrary&) = delete;
  LoadedLibrary(LoadedLibrary&&) = delete;
  LoadedLibrary& operator=(LoadedLibrary&&) = delete;
  ~LoadedLibrary();

  /// Whether the library is still in the process.
  static bool isPresent();

  [[nodiscard]] Calls calls() const;

  /// The handle of dlopen, or an HMODULE.
  [[nodiscard]] void* handle() const { return handle_; }

 private:
  void* handle_;
};
