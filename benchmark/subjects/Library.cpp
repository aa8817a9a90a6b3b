#include "Library.h"

#include <dlfcn.h>

#include <exception>
#include <filesystem>
#include <stdexcept>

#include "BarePipeline.h"

namespace {

// As `nm -D libVornLib.so` lists them.
constexpr const char* columnsSymbol =
    "_ZN4vorn22GetOutputNamesAndTypesERKNSt7__cxx1112basic_stringIDsSt11char_traitsIDsESaIDsEEE"
    "RSt6vectorISt4pairIS5_NS_10CypherTypeEESaISB_EE";
constexpr const char* usagesSymbol =
    "_ZN4vorn45GetVariableUsagesInPropertyFilterOCExpressionERKNSt7__cxx1112basic_stringIDs"
    "St11char_traitsIDsESaIDsEEE";
constexpr const char* renamingSymbol =
    "_ZN4vorn48ReplaceVariableNamesInPropertyFilterOCExpressionERKNSt7__cxx1112basic_stringIDs"
    "St11char_traitsIDsESaIDsEEERKSt13unordered_mapIS5_S5_St4hashIS5_ESt8equal_toIS5_E"
    "SaISt4pairIS6_S5_EEE";

// Never closed: the tables of a library must outlive every call into it.
void* load(const std::string& path) {
  void* library = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
  if (library == nullptr) {
    throw std::runtime_error(dlerror());
  }
  return library;
}

template <typename Function>
Function find(void* library, const char* symbol) {
  void* address = dlsym(library, symbol);
  if (address == nullptr) {
    throw std::runtime_error(dlerror());
  }
  return reinterpret_cast<Function>(address);
}

// build/bench/libVornLib.so is "bench".
std::string folderOf(const std::string& path) {
  return std::filesystem::absolute(path).parent_path().filename();
}

}  // namespace

Library::Library(const std::string& path) : Subject(folderOf(path)) {
  void* library = load(path);
  columns = find<decltype(columns)>(library, columnsSymbol);
  usages = find<decltype(usages)>(library, usagesSymbol);
  renaming = find<decltype(renaming)>(library, renamingSymbol);
}

void Library::call(Function function, const Text& text) const {
  if (function == Function::Columns) {
    std::vector<std::pair<vorn::WideString, vorn::CypherType>> answer;
    columns(text.utf16, answer);
    return;
  }
  try {
    if (function == Function::Usages) {
      usages(text.utf16);
    } else {
      renaming(text.utf16, text.renames);
    }
  } catch (const std::exception&) {  // NOLINT(bugprone-empty-catch): errors are measured too
  }
}

std::unique_ptr<Subject> makeSubject(const std::string& bareOrPath) {
  if (bareOrPath == "bare") {
    return std::make_unique<BarePipeline>();
  }
  return std::make_unique<Library>(bareOrPath);
}
