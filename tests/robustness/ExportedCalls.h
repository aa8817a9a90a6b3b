#pragma once

#if defined(_WIN32)
#include <windows.h>
#else
#include <dlfcn.h>
#endif

#include <stdexcept>
#include <string>

#include "robustness/Questions.h"

// A wide character in a mangled name.
#if defined(_WIN32)
#define VORN_WIDE "w"
#else
#define VORN_WIDE "Ds"
#endif
// `const WideString&` there.
#define VORN_TEXT \
  "RKNSt7__cxx1112basic_stringI" VORN_WIDE "St11char_traitsI" VORN_WIDE "ESaI" VORN_WIDE "EEE"

template <typename Function>
void findExported(void* library, Function& function, const char* mangledName) {
#if defined(_WIN32)
  void* const symbol =
      reinterpret_cast<void*>(GetProcAddress(static_cast<HMODULE>(library), mangledName));
#else
  void* const symbol = ::dlsym(library, mangledName);
#endif
  if (symbol == nullptr) {
    throw std::runtime_error(std::string("the library does not export ") + mangledName);
  }
  // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): dlsym leaves no other way
  function = reinterpret_cast<Function>(symbol);
}

/// The three functions of a loaded library. Throws a std::runtime_error if the library lacks one of
/// them.
inline Calls exportedCalls(void* library) {
  Calls found{};
  findExported(library, found.columns,
               "_ZN4vorn22GetOutputNamesAndTypesE" VORN_TEXT
               "RSt6vectorISt4pairIS5_NS_10CypherTypeEESaISB_EE");
  findExported(library, found.usages,
               "_ZN4vorn45GetVariableUsagesInPropertyFilterOCExpressionE" VORN_TEXT);
  findExported(library, found.renaming,
               "_ZN4vorn48ReplaceVariableNamesInPropertyFilterOCExpressionE" VORN_TEXT
               "RKSt13unordered_mapIS5_S5_St4hashIS5_ESt8equal_toIS5_ESaISt4pairIS6_S5_EEE");
  return found;
}
