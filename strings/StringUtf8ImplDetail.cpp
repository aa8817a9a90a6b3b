#include "strings/StringUtf8ImplDetail.h"

#include <utf8.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <functional>
#include <numeric>

namespace StringUtf8ImplDetail {

namespace {

template <typename Unit>
bool isAscii(Unit unit) {
  constexpr int last = 0x7F;
  return unit >= 0 && unit <= last;
}

// Copies the ASCII characters at the start of a text and returns how many they are. It works in
// blocks, since the compiler makes a few instructions of each.
template <typename Unit, typename Other>
std::ptrdiff_t copyAscii(const Unit* first, const Unit* last, Other* output) {
  constexpr std::ptrdiff_t size = 16;
  const auto convert = [](Unit unit) { return static_cast<Other>(unit); };
  const Unit* unit = first;
  for (; last - unit >= size; unit += size, output += size) {
    std::array<Unit, size> block{};
    std::copy_n(unit, size, block.begin());
    const Unit all = std::accumulate(block.begin(), block.end(), Unit{}, std::bit_or<Unit>());
    if (!isAscii(all)) {
      break;
    }
    std::transform(block.begin(), block.end(), output, convert);
  }
  for (; unit != last && isAscii(*unit); ++unit) {
    *output++ = convert(*unit);
  }
  return unit - first;
}

// Copies what is ASCII, which is most of a text, and calls `convert` for the other parts.
template <typename Unit, typename Other, typename Convert>
Other* convertText(const Unit* first, const Unit* last, Other* output, const Convert& convert) {
  while (first != last) {
    const std::ptrdiff_t copied = copyAscii(first, last, output);
    first += copied;
    const Unit* const ascii = std::find_if(first, last, isAscii<Unit>);
    output = convert(first, ascii, output + copied);
    first = ascii;
  }
  return output;
}

}  // namespace

std::string StringWideCharToUtf8Impl(std::basic_string_view<vorn::WideChar> text) {
  // Room for a few characters beyond ASCII, so that most texts need one block of memory.
  constexpr std::size_t oneInThisMany = 16;
  std::string utf8(text.size() + text.size() / oneInThisMany, '\0');
  const vorn::WideChar* const last = text.data() + text.size();
  const char* const end = convertText(
      text.data(), last, utf8.data(),
      [&](const vorn::WideChar* first, const vorn::WideChar* ascii, const char* output) {
        // Each of these units takes three bytes at most, each later one takes at least one.
        const auto used = static_cast<std::size_t>(output - utf8.data());
        const auto needed = used + static_cast<std::size_t>(3 * (ascii - first) + (last - ascii));
        if (needed > utf8.size()) {
          utf8.resize(needed);
        }
        return utf8::utf16to8(first, ascii, utf8.data() + used);
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
