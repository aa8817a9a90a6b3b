#include "Library.h"

#include <dlfcn.h>

#include <exception>
#include <filesystem>
#include <stdexcept>

#include "BarePipeline.h"
#include "robustness/ExportedCalls.h"

namespace {

// The name of the folder: "bench" for build/bench/libVornLib.so.
std::string folderOf(const std::string& path) {
  return std::filesystem::absolute(path).parent_path().filename();
}

}  // namespace

Calls loadCalls(const std::string& path) {
  void* library = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
  if (library == nullptr) {
    throw std::runtime_error(dlerror());
  }
  return exportedCalls(library);
}

Library::Library(const std::string& path) : Subject(folderOf(path)), calls_(loadCalls(path)) {}

void Library::call(Function function, const Text& text) const {
  if (function == Function::Columns) {
    std::vector<std::pair<vorn::WideString, vorn::CypherType>> answer;
    calls_.columns(text.utf16, answer);
    return;
  }
  try {
    if (function == Function::Usages) {
      calls_.usages(text.utf16);
    } else {
      calls_.renaming(text.utf16, text.renames);
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
