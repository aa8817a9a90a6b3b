#include "Utf16.h"

#include <utf8.h>

#include <iterator>

namespace inspect {

vorn::WideString toUtf16(std::string_view utf8) {
  vorn::WideString utf16;
  utf16.reserve(utf8.size());
  utf8::utf8to16(utf8.begin(), utf8.end(), std::back_inserter(utf16));
  return utf16;
}

std::string toUtf8(const vorn::WideString& utf16) {
  std::string utf8;
  utf8.reserve(utf16.size());
  utf8::utf16to8(utf16.begin(), utf16.end(), std::back_inserter(utf8));
  return utf8;
}

}  // namespace inspect
