#pragma once

#include <dlfcn.h>

#include <stdexcept>

#include "robustness/Questions.h"

template <typename Function>
void findExported(void* library, Function& function, const char* mangledName) {
  void* const symbol = ::dlsym(library, mangledName);
  if (symbol == nullptr) {
    throw std::runtime_error(::dlerror());
  }
  // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): dlsym leaves no other way
  function = reinterpret_cast<Function>(symbol);
}

/// The three functions of a library that dlopen has loaded. Throws a std::runtime_error if the
/// library lacks one of them.
inline Calls exportedCalls(void* library) {
  Calls found{};
  findExported(
      library, found.columns,
      "_ZN4vorn22GetOutputNamesAndTypesERKNSt7__cxx1112basic_stringIDsSt11char_traitsIDsESaIDsEEE"
      "RSt6vectorISt4pairIS5_NS_10CypherTypeEESaISB_EE");
  findExported(
      library, found.usages,
      "_ZN4vorn45GetVariableUsagesInPropertyFilterOCExpressionERKNSt7__cxx1112basic_stringIDsSt11"
      "char_traitsIDsESaIDsEEE");
  findExported(
      library, found.renaming,
      "_ZN4vorn48ReplaceVariableNamesInPropertyFilterOCExpressionERKNSt7__cxx1112basic_stringIDs"
      "St11char_traitsIDsESaIDsEEERKSt13unordered_mapIS5_S5_St4hashIS5_ESt8equal_toIS5_ESaISt4pa"
      "irIS6_S5_EEE");
  return found;
}
