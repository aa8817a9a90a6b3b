#pragma once

#include <utf8.h>

#include <iterator>
#include <string>
#include <string_view>

#include "vorn/vorn.h"

/// UTF-16 from UTF-8 that a test writes, so that the tests read alike on every platform.
inline vorn::WideString wide(std::string_view utf8) {
  vorn::WideString text;
  utf8::utf8to16(utf8.begin(), utf8.end(), std::back_inserter(text));
  return text;
}

/// UTF-8 from an answer, for comparison with what a test writes.
inline std::string narrow(std::basic_string_view<vorn::WideChar> wide) {
  std::string text;
  utf8::utf16to8(wide.begin(), wide.end(), std::back_inserter(text));
  return text;
}

/// One character in UTF-8.
inline std::string encoded(char32_t codePoint) {
  std::string text;
  utf8::append(codePoint, std::back_inserter(text));
  return text;
}

/// The text with a question mark for each ill-formed place, such as half of a character.
inline std::string wellFormed(std::string_view damaged) {
  std::string text;
  utf8::replace_invalid(damaged.begin(), damaged.end(), std::back_inserter(text), '?');
  return text;
}
