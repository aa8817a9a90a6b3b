#pragma once

#include <dlfcn.h>

#include <stdexcept>

#include "robustness/ExportedCalls.h"

/// The shared library, loaded while the object lives. If it was not loaded before, the next call is
/// the first one of the library.
class LoadedLibrary {
 public:
  LoadedLibrary() : handle(::dlopen(VORN_LIBRARY, RTLD_NOW | RTLD_LOCAL)) {
    if (handle == nullptr) {
      throw std::runtime_error(::dlerror());
    }
  }
  LoadedLibrary(const LoadedLibrary&) = delete;
  LoadedLibrary& operator=(const LoadedLibrary&) = delete;
  LoadedLibrary(LoadedLibrary&&) = delete;
  LoadedLibrary& operator=(LoadedLibrary&&) = delete;
  ~LoadedLibrary() { ::dlclose(handle); }

  /// Whether the library is still in the process.
  static bool isPresent() {
    void* const present = ::dlopen(VORN_LIBRARY, RTLD_NOW | RTLD_NOLOAD);
    if (present != nullptr) {
      ::dlclose(present);
    }
    return present != nullptr;
  }

  [[nodiscard]] Calls calls() const { return exportedCalls(handle); }

 private:
  void* handle;
};
