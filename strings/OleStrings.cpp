#include "strings/OleStrings.h"

#include <limits>

#if defined(_WIN32)
#include <windows.h>
// Needs windows.h before it.
#include <oleauto.h>
#else
#include <algorithm>
#include <cstring>
#include <new>
#endif

namespace vorn::platform {

namespace {

using Prefix = std::uint32_t;

// In characters. The prefix and the terminating zero count towards the 32 bits.
constexpr std::size_t longest =
    (std::numeric_limits<Prefix>::max() - sizeof(Prefix) - sizeof(WideChar)) / sizeof(WideChar);

}  // namespace

#if defined(_WIN32)

WideChar* SysAllocStringLen(const WideChar* source, std::size_t length) noexcept {
  return length > longest ? nullptr : ::SysAllocStringLen(source, static_cast<UINT>(length));
}

void SysFreeString(WideChar* string) noexcept { ::SysFreeString(string); }

std::uint32_t SysStringLen(WideChar* string) noexcept { return ::SysStringLen(string); }

#else

namespace {

// The prefix stands directly before the first character.
char* blockOf(WideChar* string) { return reinterpret_cast<char*>(string) - sizeof(Prefix); }

}  // namespace

WideChar* SysAllocStringLen(const WideChar* source, std::size_t length) noexcept {
  if (length > longest) {
    return nullptr;
  }
  const auto bytes = static_cast<Prefix>(length * sizeof(WideChar));
  void* block = ::operator new(sizeof bytes + bytes + sizeof(WideChar), std::nothrow);
  if (block == nullptr) {
    return nullptr;
  }
  std::memcpy(block, &bytes, sizeof bytes);
  auto* string = reinterpret_cast<WideChar*>(static_cast<char*>(block) + sizeof bytes);
  if (source != nullptr) {
    std::copy_n(source, length, string);
  }
  string[length] = 0;
  return string;
}

void SysFreeString(WideChar* string) noexcept {
  if (string != nullptr) {
    ::operator delete(blockOf(string));
  }
}

std::uint32_t SysStringLen(WideChar* string) noexcept {
  Prefix bytes = 0;
  if (string != nullptr) {
    std::memcpy(&bytes, blockOf(string), sizeof bytes);
  }
  return bytes / sizeof(WideChar);
}

#endif

}  // namespace vorn::platform
