#include "LoadedLibrary.h"

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

namespace {

constexpr const wchar_t* name = L"VornLib.dll";

template <typename Object>
const Object* at(HMODULE module, std::uintptr_t offset) {
  return reinterpret_cast<const Object*>(reinterpret_cast<std::uintptr_t>(module) + offset);
}

// The exported function whose mangled name contains `part`.
template <typename Function>
Function find(HMODULE module, std::string_view part) {
  const auto* dos = at<IMAGE_DOS_HEADER>(module, 0);
  const auto* headers = at<IMAGE_NT_HEADERS>(module, static_cast<std::uintptr_t>(dos->e_lfanew));
  const auto& place = headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_EXPORT];
  const auto* exports = at<IMAGE_EXPORT_DIRECTORY>(module, place.VirtualAddress);
  const auto* names = at<DWORD>(module, exports->AddressOfNames);
  for (DWORD i = 0; i < exports->NumberOfNames; ++i) {
    const char* exported = at<char>(module, names[i]);
    if (std::string_view(exported).find(part) != std::string_view::npos) {
      return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(module, exported)));
    }
  }
  throw std::runtime_error("the library does not export " + std::string(part));
}

// The place where the loader has stored the address of an imported function.
void** importedAddress(HMODULE module, std::string_view mangledName) {
  const auto* dos = at<IMAGE_DOS_HEADER>(module, 0);
  const auto* headers = at<IMAGE_NT_HEADERS>(module, static_cast<std::uintptr_t>(dos->e_lfanew));
  const auto& place = headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
  for (const auto* from = at<IMAGE_IMPORT_DESCRIPTOR>(module, place.VirtualAddress);
       from->Name != 0; ++from) {
    const auto* names = at<IMAGE_THUNK_DATA>(module, from->OriginalFirstThunk);
    for (std::size_t i = 0; names[i].u1.AddressOfData != 0; ++i) {
      const auto* imported = at<IMAGE_IMPORT_BY_NAME>(module, names[i].u1.AddressOfData);
      if (!IMAGE_SNAP_BY_ORDINAL(names[i].u1.Ordinal) && mangledName == &imported->Name[0]) {
        return const_cast<void**>(at<void*>(module, from->FirstThunk) + i);
      }
    }
  }
  throw std::runtime_error("the library does not import " + std::string(mangledName));
}

HMODULE load() {
  HMODULE const module = LoadLibraryW(name);
  if (module == nullptr) {
    throw std::runtime_error("the library cannot be loaded");
  }
  return module;
}

}  // namespace

LoadedLibrary::LoadedLibrary() : handle(load()) {
  getOutputNamesAndTypes = find<decltype(getOutputNamesAndTypes)>(handle, "GetOutputNamesAndTypes");
  getVariableUsages =
      find<decltype(getVariableUsages)>(handle, "GetVariableUsagesInPropertyFilterOCExpression");
  replaceVariableNames = find<decltype(replaceVariableNames)>(
      handle, "ReplaceVariableNamesInPropertyFilterOCExpression");
}

LoadedLibrary::~LoadedLibrary() { FreeLibrary(handle); }

void LoadedLibrary::replaceImport(std::string_view mangledName, void* replacement) const {
  void** const address = importedAddress(handle, mangledName);
  DWORD protection = 0;
  VirtualProtect(address, sizeof *address, PAGE_READWRITE, &protection);
  *address = replacement;
  VirtualProtect(address, sizeof *address, protection, &protection);
}

bool LoadedLibrary::isLoaded() { return GetModuleHandleW(name) != nullptr; }
