#pragma once

#if defined(_WIN32)
#include <windows.h>
#else
#include <dlfcn.h>
#endif

#include <stdexcept>
#include <string>

#include "robustness/Questions.h"

/// `const WideString&` in a mangled name.
inline std::string mangledText() {
  const std::string wide = sizeof(wchar_t) == sizeof(vorn::WideChar) ? "w" : "Ds";
  return "RKNSt7__cxx1112basic_stringI" + wide + "St11char_traitsI" + wide + "ESaI" + wide + "EEE";
}

template <typename Function>
void findExported(void* library, Function& function, const std::string& mangledName) {
#if defined(_WIN32)
  void* const symbol =
      reinterpret_cast<void*>(GetProcAddress(static_cast<HMODULE>(library), mangledName.c_str()));
#else
  void* const symbol = ::dlsym(library, mangledName.c_str());
#endif
  if (symbol == nullptr) {
    throw std::runtime_error("the library does not export " + mangledName);
  }
  // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): dlsym leaves no other way
  function = reinterpret_cast<Function>(symbol);
}

/// The three functions of a loaded library. Throws a std::runtime_error if the library lacks one of
/// them.
inline Calls exportedCalls(void* library) {
  Calls found{};
  findExported(library, found.columns,
               "_ZN4vorn22GetOutputNamesAndTypesE" + mangledText() +
                   "RSt6vectorISt4pairIS5_NS_10CypherTypeEESaISB_EE");
  findExported(library, found.usages,
               "_ZN4vorn45GetVariableUsagesInPropertyFilterOCExpressionE" + mangledText());
  findExported(library, found.renaming,
               "_ZN4vorn48ReplaceVariableNamesInPropertyFilterOCExpressionE" + mangledText() +
                   "RKSt13unordered_mapIS5_S5_St4hashIS5_ESt8equal_toIS5_ESaISt4pairIS6_S5_EEE");
  return found;
}
