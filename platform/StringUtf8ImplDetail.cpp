#include "StringUtf8ImplDetail.h"

#include <utf8.h>

#include <algorithm>

namespace StringUtf8ImplDetail {

namespace {

template <typename Unit>
bool isAscii(Unit unit) {
  constexpr int last = 0x7F;
  return unit >= 0 && unit <= last;
}

// Texts are ASCII for the most part, which is copied unit by unit; `convert` is for the rest.
template <typename Unit, typename Other, typename Convert>
Other* convertText(const Unit* first, const Unit* last, Other* output, const Convert& convert) {
  while (first != last) {
    for (; first != last && isAscii(*first); ++first) {
      *output++ = static_cast<Other>(*first);
    }
    const Unit* const ascii = std::find_if(first, last, isAscii<Unit>);
    output = convert(first, ascii, output);
    first = ascii;
  }
  return output;
}

}  // namespace

std::string StringWideCharToUtf8Impl(std::basic_string_view<vorn::WideChar> text) {
  std::string utf8(text.size(), '\0');
  std::size_t ascii = 0;
  for (; ascii < text.size() && isAscii(text[ascii]); ++ascii) {
    utf8[ascii] = static_cast<char>(text[ascii]);
  }
  // From here on one unit takes three bytes at most.
  utf8.resize(ascii + 3 * (text.size() - ascii));
  const char* const end =
      convertText(text.data() + ascii, text.data() + text.size(), utf8.data() + ascii,
                  [](const vorn::WideChar* first, const vorn::WideChar* last, char* output) {
                    return utf8::utf16to8(first, last, output);
                  });
  utf8.resize(static_cast<std::size_t>(end - utf8.data()));
  return utf8;
}

vorn::WideString StringUtf8ToWideCharImpl(std::string_view text) {
  vorn::WideString wide(text.size(), vorn::WideChar{});
  const vorn::WideChar* const end =
      convertText(text.data(), text.data() + text.size(), wide.data(),
                  [](const char* first, const char* last, vorn::WideChar* output) {
                    return utf8::utf8to16(first, last, output);
                  });
  wide.resize(static_cast<std::size_t>(end - wide.data()));
  return wide;
}

}  // namespace StringUtf8ImplDetail
