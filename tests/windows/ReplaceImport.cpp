#include "ReplaceImport.h"

#include <windows.h>

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

namespace {

template <typename Object>
const Object* at(HMODULE module, std::uintptr_t offset) {
  return reinterpret_cast<const Object*>(reinterpret_cast<std::uintptr_t>(module) + offset);
}

/// Where the loader has put the address of an imported function.
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

}  // namespace

void replaceImport(const LoadedLibrary& library, std::string_view mangledName, void* replacement) {
  void** const address = importedAddress(static_cast<HMODULE>(library.handle()), mangledName);
  DWORD protection = 0;
  VirtualProtect(address, sizeof *address, PAGE_READWRITE, &protection);
  *address = replacement;
  VirtualProtect(address, sizeof *address, protection, &protection);
}
