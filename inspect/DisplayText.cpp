#include "DisplayText.h"

#include <utf8.h>
#include <utf8proc.h>

#include <algorithm>
#include <cstdint>
#include <iterator>

namespace inspect {

namespace {

// Joiners and variation selectors are parts of emoji and of words in some scripts.
bool isPartOfWords(char32_t character) {
  return character == U'\u200C' || character == U'\u200D' || character == U'\uFE0E' ||
         character == U'\uFE0F';
}

// A character that takes no room, such as a Hangul filler, would hide in a name.
bool needsEscape(char32_t character) {
  switch (utf8proc_category(static_cast<utf8proc_int32_t>(character))) {
    case UTF8PROC_CATEGORY_CC:
    case UTF8PROC_CATEGORY_ZL:
    case UTF8PROC_CATEGORY_ZP:
      return true;
    case UTF8PROC_CATEGORY_CF:
      return !isPartOfWords(character);
    default:
      return utf8proc_get_property(static_cast<utf8proc_int32_t>(character))->ignorable != 0 &&
             !isPartOfWords(character);
  }
}

std::string hexadecimal(std::uint32_t number, std::size_t digits) {
  constexpr std::string_view allDigits = "0123456789abcdef";
  constexpr unsigned bitsOfDigit = 4;
  std::string text(digits, '0');
  for (auto digit = text.rbegin(); digit != text.rend(); ++digit) {
    *digit = allDigits[number & 0xFU];
    number >>= bitsOfDigit;
  }
  return text;
}

std::string escape(char32_t character) {
  switch (character) {
    case U'\n':
      return "\\n";
    case U'\r':
      return "\\r";
    case U'\t':
      return "\\t";
    default:
      return character > U'\uFFFF' ? "\\U" + hexadecimal(character, 8)
                                   : "\\u" + hexadecimal(character, 4);
  }
}

// In JSON an escape is a code unit of UTF-16.
std::string escapeInJson(char32_t character) {
  const std::u32string text(1, character);
  std::string utf8;
  utf8::utf32to8(text.begin(), text.end(), std::back_inserter(utf8));
  std::u16string units;
  utf8::utf8to16(utf8.begin(), utf8.end(), std::back_inserter(units));
  std::string escaped;
  for (const char16_t unit : units) {
    escaped += "\\u" + hexadecimal(unit, 4);
  }
  return escaped;
}

template <typename Escape>
std::string withEscapes(std::string_view text, const Escape& escapeOne) {
  std::string shown;
  shown.reserve(text.size());
  for (std::string_view::const_iterator at = text.begin(); at != text.end();) {
    for (const std::string_view::const_iterator invalid = utf8::find_invalid(at, text.end());
         at != invalid;) {
      const char32_t character = utf8::next(at, invalid);
      if (needsEscape(character)) {
        shown += escapeOne(character);
      } else {
        utf8::append(character, std::back_inserter(shown));
      }
    }
    if (at != text.end()) {
      shown += "\\x" + hexadecimal(static_cast<unsigned char>(*at++), 2);
    }
  }
  return shown;
}

std::size_t clusterWidth(std::string_view cluster) {
  constexpr std::size_t widest = 2;
  std::size_t width = 0;
  for (std::string_view::const_iterator at = cluster.begin(); at != cluster.end();) {
    const auto character = static_cast<utf8proc_int32_t>(utf8::next(at, cluster.end()));
    width += static_cast<std::size_t>(std::max(utf8proc_charwidth(character), 0));
  }
  // Joined emoji and the parts of a Korean syllable share the cells of one.
  return std::min(width, widest);
}

}  // namespace

std::string escapeControls(std::string_view text) { return withEscapes(text, escape); }

std::string escapeControlsInLines(std::string_view text) {
  std::string shown;
  for (std::size_t done = 0; done != text.size();) {
    const std::size_t end = std::min(text.find_first_of("\t\n", done), text.size());
    std::string_view part = text.substr(done, end - done);
    const bool carriageReturn =
        end != text.size() && text[end] == '\n' && !part.empty() && part.back() == '\r';
    part.remove_suffix(carriageReturn ? 1 : 0);
    shown += escapeControls(part);
    done += part.size();
    const std::size_t kept = std::min(text.size(), end + 1) - done;
    shown += text.substr(done, kept);
    done += kept;
  }
  return shown;
}

std::string escapeControlsInJson(std::string_view json) { return withEscapes(json, escapeInJson); }

std::vector<std::string_view> graphemeClusters(std::string_view text) {
  std::vector<std::string_view> clusters;
  std::size_t start = 0;
  utf8proc_int32_t previous = 0;
  utf8proc_int32_t state = 0;
  for (std::string_view::const_iterator at = text.begin(); at != text.end();) {
    const auto position = static_cast<std::size_t>(std::distance(text.begin(), at));
    const auto character = static_cast<utf8proc_int32_t>(utf8::next(at, text.end()));
    if (position > start && utf8proc_grapheme_break_stateful(previous, character, &state)) {
      clusters.push_back(text.substr(start, position - start));
      start = position;
    }
    previous = character;
  }
  if (!text.empty()) {
    clusters.push_back(text.substr(start));
  }
  return clusters;
}

std::size_t displayWidth(std::string_view text) {
  std::size_t width = 0;
  for (const std::string_view cluster : graphemeClusters(text)) {
    width += clusterWidth(cluster);
  }
  return width;
}

}  // namespace inspect
