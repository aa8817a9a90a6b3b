#pragma once

#include <utf8.h>

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string_view>

#include "vorn/vorn.h"

inline std::string_view bytesOf(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

/// UTF-16 from the bytes of a fuzzer. A byte that is no UTF-8 becomes an unpaired surrogate, so
/// that ill-formed text occurs too.
inline vorn::WideString wideFrom(std::string_view bytes) {
  constexpr vorn::WideChar loneSurrogate = 0xDC00;
  vorn::WideString text;
  while (!bytes.empty()) {
    const char* const wrong = utf8::find_invalid(bytes.data(), bytes.data() + bytes.size());
    const auto valid = static_cast<std::size_t>(wrong - bytes.data());
    utf8::utf8to16(bytes.data(), wrong, std::back_inserter(text));
    bytes.remove_prefix(valid);
    if (!bytes.empty()) {
      text +=
          static_cast<vorn::WideChar>(loneSurrogate + static_cast<unsigned char>(bytes.front()));
      bytes.remove_prefix(1);
    }
  }
  return text;
}
