#pragma once

#include <cstdint>
#include <cstring>
#include <ostream>
#include <string>
#include <string_view>
#include <type_traits>

#include "support/Text.h"
#include "vorn/strings/BString.h"
#include "vorn/strings/String.h"

using WideView = std::basic_string_view<vorn::WideChar>;

/// A String of UTF-8 that a test writes.
inline String stringOf(std::string_view utf8) { return String(wide(utf8).c_str()); }

/// A BString of UTF-8 that a test writes. The text may contain zeros.
inline BString bstringOf(std::string_view utf8) {
  BString made(0L);
  const vorn::WideString text = wide(utf8);
  made.Append(text.data(), static_cast<int>(text.size()));
  return made;
}

/// All characters in UTF-8, also those behind a zero.
template <typename Text>
std::string utf8Of(const Text& text) {
  const WideView view = text;
  return narrow(view);
}

/// The number that stands directly before the first character.
inline std::uint32_t header(const vorn::WideChar* characters) {
  std::uint32_t bytes = 0;
  std::memcpy(&bytes, reinterpret_cast<const char*>(characters) - sizeof bytes, sizeof bytes);
  return bytes;
}

/// The pointer that the object is made of.
template <typename Object>
vorn::WideChar* pointerIn(const Object& object) {
  static_assert(sizeof object == sizeof(vorn::WideChar*));
  vorn::WideChar* pointer = nullptr;
  std::memcpy(&pointer, reinterpret_cast<const char*>(std::addressof(object)), sizeof pointer);
  return pointer;
}
