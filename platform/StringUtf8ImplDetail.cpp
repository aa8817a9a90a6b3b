#include "StringUtf8ImplDetail.h"

#include <utf8.h>

#include <iterator>

namespace StringUtf8ImplDetail {

std::string StringWideCharToUtf8Impl(std::basic_string_view<vorn::WideChar> text) {
  std::string utf8;
  utf8.reserve(text.size());
  utf8::utf16to8(text.begin(), text.end(), std::back_inserter(utf8));
  return utf8;
}

vorn::WideString StringUtf8ToWideCharImpl(std::string_view text) {
  vorn::WideString wide;
  wide.reserve(text.size());
  utf8::utf8to16(text.begin(), text.end(), std::back_inserter(wide));
  return wide;
}

}  // namespace StringUtf8ImplDetail
