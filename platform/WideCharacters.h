#pragma once

#include <cstddef>

#include "vorn/vorn.h"

/// The C library's functions on wide characters, for UTF-16 code units on every platform. They
/// stand in a namespace of their own because the C library's have the same names and, where its
/// wide characters have 32 bits, another meaning.
///
/// What depends on the locale takes LC_CTYPE as it is at the call. No other thread may change it
/// meanwhile, as the C library itself demands.
namespace vorn::platform {

/// The length of `text`, 0 for null.
int lstrlenW(const WideChar* text) noexcept;

int wcscmp(const WideChar* left, const WideChar* right) noexcept;

/// Copies `source` with its terminating zero.
void wcscpy(WideChar* destination, const WideChar* source) noexcept;

/// _wcsicmp: wcscmp after both texts were made lower case unit by unit, as towlower tells.
int wcsicmp(const WideChar* left, const WideChar* right) noexcept;

/// What an encoded or decoded text's length is when it cannot be encoded or decoded.
constexpr auto noLength = static_cast<std::size_t>(-1);

/// wcstombs without a destination: the length in bytes of `text` in the locale's multibyte
/// encoding, without the terminating zero.
std::size_t multibyteLength(const WideChar* text) noexcept;

/// mbstowcs without a destination: the length in UTF-16 code units of a text in the locale's
/// multibyte encoding, without the terminating zero.
std::size_t wideLength(const char* text) noexcept;

/// mbstowcs: writes `text`, for which wideLength gave `length`, without a terminating zero.
void widen(WideChar* destination, const char* text, std::size_t length) noexcept;

}  // namespace vorn::platform
