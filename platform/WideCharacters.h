#pragma once

#include <cstddef>

#include "vorn/vorn.h"

/// The C library's functions on wide characters, for UTF-16 code units on every platform. They have
/// a namespace of their own, since the C library's functions have the same names and work on 32-bit
/// characters on some platforms.
///
/// Functions that depend on the locale take LC_CTYPE as it is at the call. No other thread may
/// change it meanwhile, as the C library itself demands.
namespace vorn::platform {

/// The length of `text`, 0 for null.
int lstrlenW(const WideChar* text) noexcept;

int wcscmp(const WideChar* left, const WideChar* right) noexcept;

/// Copies `source` with its terminating zero.
void wcscpy(WideChar* destination, const WideChar* source) noexcept;

/// _wcsicmp: compares like wcscmp, with each code unit made lower case by towlower.
int wcsicmp(const WideChar* left, const WideChar* right) noexcept;

/// The length of a text that cannot be encoded or decoded.
constexpr auto noLength = static_cast<std::size_t>(-1);

/// wcstombs without a destination: the length in bytes of `text` in the locale's multibyte
/// encoding, without the terminating zero.
std::size_t multibyteLength(const WideChar* text) noexcept;

/// mbstowcs without a destination: the length in UTF-16 code units of a text in the locale's
/// multibyte encoding, without the terminating zero.
std::size_t wideLength(const char* text) noexcept;

/// mbstowcs: writes `text` without a terminating zero. `length` must be what wideLength has
/// returned for it.
void widen(WideChar* destination, const char* text, std::size_t length) noexcept;

}  // namespace vorn::platform
