#pragma once

#include <dlfcn.h>

#include <stdexcept>

#include "robustness/Questions.h"

/// The shared library, loaded while this lives. Where nobody else has loaded it, every call after
/// that is a first one.
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

  /// Whether some handle still keeps the library in the process.
  static bool isPresent() {
    void* const present = ::dlopen(VORN_LIBRARY, RTLD_NOW | RTLD_NOLOAD);
    if (present != nullptr) {
      ::dlclose(present);
    }
    return present != nullptr;
  }

  [[nodiscard]] Calls calls() const {
    Calls found{};
    find(
        found.columns,
        "_ZN4vorn22GetOutputNamesAndTypesERKNSt7__cxx1112basic_stringIDsSt11char_traitsIDsESaIDsEEE"
        "RSt6vectorISt4pairIS5_NS_10CypherTypeEESaISB_EE");
    find(
        found.usages,
        "_ZN4vorn45GetVariableUsagesInPropertyFilterOCExpressionERKNSt7__cxx1112basic_stringIDsSt11"
        "char_traitsIDsESaIDsEEE");
    find(found.renaming,
         "_ZN4vorn48ReplaceVariableNamesInPropertyFilterOCExpressionERKNSt7__cxx1112basic_stringIDs"
         "St11char_traitsIDsESaIDsEEERKSt13unordered_mapIS5_S5_St4hashIS5_ESt8equal_toIS5_ESaISt4pa"
         "irIS6_S5_EEE");
    return found;
  }

 private:
  template <typename Function>
  void find(Function& function, const char* mangledName) const {
    void* const symbol = ::dlsym(handle, mangledName);
    if (symbol == nullptr) {
      throw std::runtime_error(::dlerror());
    }
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): dlsym leaves no other way
    function = reinterpret_cast<Function>(symbol);
  }

  void* handle;
};
