// The members of the string classes that belong to the host platform's core library: storage,
// resources and conversion.

#include <algorithm>
#include <cstring>
#include <limits>
#include <new>
#include <stdexcept>

#include "platform/WideCharacters.h"
#include "strings/OleStrings.h"
#include "vorn/strings/BString.h"
#include "vorn/strings/String.h"
#include "vorn/strings/StringArray.h"

#if defined(_WIN32)
#include <windows.h>
#endif

namespace platform = vorn::platform;

namespace {

// Stands before the characters. The length must be last, directly before them.
struct Header {
  std::uint32_t capacity;  // in characters, without the terminating zero
  std::uint32_t byteLength;
};

constexpr std::size_t longest = std::numeric_limits<std::uint32_t>::max() / sizeof(vorn::WideChar);

Header* headerOf(vorn::WideChar* characters) { return reinterpret_cast<Header*>(characters) - 1; }

vorn::WideChar* allocate(std::size_t capacity) {
  void* block = ::operator new(sizeof(Header) + (capacity + 1) * sizeof(vorn::WideChar));
  auto* header = new (block) Header{static_cast<std::uint32_t>(capacity), 0};
  return reinterpret_cast<vorn::WideChar*>(header + 1);
}

void release(vorn::WideChar* characters) {
  if (characters != nullptr) {
    ::operator delete(headerOf(characters));
  }
}

std::size_t capacityOf(vorn::WideChar* characters) {
  return characters == nullptr ? 0 : headerOf(characters)->capacity;
}

// Grows by half at least, so that appending many small texts does not copy the whole text each
// time.
std::size_t grown(std::size_t capacity, std::size_t length) {
  return std::max(length, std::min(longest, capacity + capacity / 2));
}

}  // namespace

String::String() : String(nullptr) {}

String::String(const vorn::WideChar* text) : characters(nullptr) {
  const auto length = static_cast<unsigned long>(platform::lstrlenW(text));
  CreateStringData(length, false, 0);
  if (text != nullptr) {
    platform::wcscpy(characters, text);
  }
}

String::~String() { release(characters); }

void String::CreateStringData(unsigned long length, bool keepContents, unsigned long /*reserved*/) {
  if (length > longest) {
    throw std::length_error("a String's length in bytes must fit in 32 bits");
  }
  const std::size_t kept =
      keepContents && characters != nullptr ? std::min<std::size_t>(GetLength(), length) : 0;
  const std::size_t capacity = capacityOf(characters);
  if (characters == nullptr || length > capacity) {
    vorn::WideChar* roomier = allocate(keepContents ? grown(capacity, length) : length);
    std::copy_n(characters, kept, roomier);
    release(characters);
    characters = roomier;
  }
  std::fill(characters + kept, characters + length + 1, vorn::WideChar{0});
  SetLengthImpl(length);
}

BSTR String::MakeBSTR() const noexcept {
  return characters == nullptr ? nullptr : platform::SysAllocStringLen(characters, GetLength());
}

bool String::LoadStringW(unsigned int id, HINSTANCE module) {
#if defined(_WIN32)
  // With a buffer of size 0 the function gives the address of the resource itself, which has no
  // terminating zero.
  const vorn::WideChar* resource = nullptr;
  const int length = ::LoadStringW(module, id, reinterpret_cast<vorn::WideChar*>(&resource), 0);
  if (length <= 0) {
    Empty();
    return false;
  }
  CreateStringData(static_cast<unsigned long>(length), false, 0);
  std::copy_n(resource, length, characters);
  return true;
#else
  static_cast<void>(id);
  static_cast<void>(module);
  Empty();
  return false;
#endif
}

BString::BString(const char* text, int /*encoding*/) noexcept : string(nullptr) {
  const std::size_t length = text == nullptr ? platform::noLength : platform::wideLength(text);
  if (length == platform::noLength) {
    return;
  }
  string = platform::SysAllocStringLen(nullptr, length);
  if (string != nullptr) {
    platform::widen(string, text, length);
  }
}

StringArray::StringArray(String** first, std::int32_t size) noexcept
    : elements(first), count(size) {}
