#include "robustness/LoadedLibrary.h"

#include "robustness/ExportedCalls.h"

namespace {

#if defined(_WIN32)

void* load() { return LoadLibraryA(VORN_LIBRARY); }

const char* reason() { return "the library cannot be loaded"; }

#else

void* load() { return ::dlopen(VORN_LIBRARY, RTLD_NOW | RTLD_LOCAL); }

const char* reason() { return ::dlerror(); }

#endif

}  // namespace

LoadedLibrary::LoadedLibrary() : handle_(load()) {
  if (handle_ == nullptr) {
    throw std::runtime_error(reason());
  }
}

#if defined(_WIN32)

LoadedLibrary::~LoadedLibrary() { FreeLibrary(static_cast<HMODULE>(handle_)); }

bool LoadedLibrary::isPresent() { return GetModuleHandleA(VORN_LIBRARY) != nullptr; }

#else

LoadedLibrary::~LoadedLibrary() { ::dlclose(handle_); }

bool LoadedLibrary::isPresent() {
  void* const present = ::dlopen(VORN_LIBRARY, RTLD_NOW | RTLD_NOLOAD);
  if (present != nullptr) {
    ::dlclose(present);
  }
  return present != nullptr;
}

#endif

Calls LoadedLibrary::calls() const { return exportedCalls(handle_); }
