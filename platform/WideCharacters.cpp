#include "platform/WideCharacters.h"

#if defined(_WIN32)
#include <windows.h>
// Needs windows.h before it.
#include <cstdlib>
#include <cwchar>
#else
#include <algorithm>
#include <array>
#include <climits>
#include <cwchar>
#include <cwctype>
#include <string>
#endif

namespace vorn::platform {

#if defined(_WIN32)

int lstrlenW(const WideChar* text) noexcept { return ::lstrlenW(text); }

int wcscmp(const WideChar* left, const WideChar* right) noexcept { return ::wcscmp(left, right); }

void wcscpy(WideChar* destination, const WideChar* source) noexcept {
  ::wcscpy(destination, source);
}

int wcsicmp(const WideChar* left, const WideChar* right) noexcept {
  return ::_wcsicmp(left, right);
}

std::size_t multibyteLength(const WideChar* text) noexcept { return ::wcstombs(nullptr, text, 0); }

std::size_t wideLength(const char* text) noexcept { return ::mbstowcs(nullptr, text, 0); }

void widen(WideChar* destination, const char* text, std::size_t length) noexcept {
  ::mbstowcs(destination, text, length);
}

#else

namespace {

using Traits = std::char_traits<WideChar>;

// Compares the results of `fold` for each code unit.
template <typename Fold>
int compare(const WideChar* left, const WideChar* right, Fold fold) {
  while (*left != 0 && fold(*left) == fold(*right)) {
    ++left;
    ++right;
  }
  const auto leftUnit = fold(*left);
  const auto rightUnit = fold(*right);
  return static_cast<int>(leftUnit > rightUnit) - static_cast<int>(leftUnit < rightUnit);
}

// The C library converts 32-bit wide characters. Converting this many at a time needs no heap.
constexpr std::size_t chunkSize = 128;
using Chunk = std::array<wchar_t, chunkSize>;

bool isHighSurrogate(WideChar unit) { return (unit & 0xFC00U) == 0xD800U; }
bool isLowSurrogate(WideChar unit) { return (unit & 0xFC00U) == 0xDC00U; }

// Returns the code point at `text` and moves `text` behind it. An unpaired surrogate stays as it
// is: no encoding has it, so the conversion fails there.
wchar_t nextCodePoint(const WideChar*& text) {
  const WideChar unit = *text++;
  if (!isHighSurrogate(unit) || !isLowSurrogate(*text)) {
    return static_cast<wchar_t>(unit);
  }
  const WideChar low = *text++;
  return static_cast<wchar_t>(0x10000U + ((unit & 0x3FFU) << 10U) + (low & 0x3FFU));
}

// Fills the chunk from `text`, moves `text` behind what was read, and returns how many code points
// were read. The last one is zero if the text ends there.
std::size_t nextChunk(const WideChar*& text, Chunk& chunk) {
  std::size_t size = 0;
  do {
    chunk[size] = nextCodePoint(text);
  } while (chunk[size++] != 0 && size < chunk.size());
  return size;
}

// Calls `take` with each code point of `text`. Returns false at the first ill-formed place.
template <typename Take>
bool decode(const char* text, Take take) {
  std::mbstate_t state{};
  Chunk chunk{};
  while (text != nullptr) {
    const std::size_t size = std::mbsrtowcs(chunk.data(), &text, chunk.size(), &state);
    if (size == noLength) {
      return false;
    }
    std::for_each_n(chunk.begin(), size, take);
  }
  return true;
}

bool needsTwoUnits(wchar_t codePoint) { return codePoint > 0xFFFF; }

WideChar* write(WideChar* destination, wchar_t codePoint) {
  if (!needsTwoUnits(codePoint)) {
    *destination++ = static_cast<WideChar>(codePoint);
    return destination;
  }
  const auto offset = static_cast<std::uint32_t>(codePoint) - 0x10000U;
  *destination++ = static_cast<WideChar>(0xD800U + (offset >> 10U));
  *destination++ = static_cast<WideChar>(0xDC00U + (offset & 0x3FFU));
  return destination;
}

}  // namespace

int lstrlenW(const WideChar* text) noexcept {
  return text == nullptr ? 0 : static_cast<int>(Traits::length(text));
}

int wcscmp(const WideChar* left, const WideChar* right) noexcept {
  return compare(left, right, [](WideChar unit) { return unit; });
}

void wcscpy(WideChar* destination, const WideChar* source) noexcept {
  Traits::copy(destination, source, Traits::length(source) + 1);
}

int wcsicmp(const WideChar* left, const WideChar* right) noexcept {
  return compare(left, right, [](WideChar unit) { return std::towlower(unit); });
}

std::size_t multibyteLength(const WideChar* text) noexcept {
  std::mbstate_t state{};
  Chunk chunk{};
  std::array<char, chunkSize * MB_LEN_MAX> bytes{};
  std::size_t total = 0;
  do {
    const wchar_t* codePoints = chunk.data();
    const std::size_t size = nextChunk(text, chunk);
    const std::size_t written = wcsnrtombs(bytes.data(), &codePoints, size, bytes.size(), &state);
    if (written == noLength) {
      return noLength;
    }
    total += written;
    if (chunk[size - 1] == 0) {
      return total;
    }
  } while (true);
}

std::size_t wideLength(const char* text) noexcept {
  std::size_t length = 0;
  const bool decoded =
      decode(text, [&](wchar_t codePoint) { length += needsTwoUnits(codePoint) ? 2 : 1; });
  return decoded ? length : noLength;
}

void widen(WideChar* destination, const char* text, std::size_t /*length*/) noexcept {
  decode(text, [&](wchar_t codePoint) { destination = write(destination, codePoint); });
}

#endif

}  // namespace vorn::platform
