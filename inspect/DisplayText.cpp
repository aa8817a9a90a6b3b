#include "DisplayText.h"

#include <utf8.h>
#include <utf8proc.h>

#include <algorithm>
#include <iterator>

namespace inspect {

namespace {

// Marks that turn the direction of writing would reorder the cells after them.
bool turnsDirection(char32_t character) {
  return character == U'\u061C' || character == U'\u200E' || character == U'\u200F' ||
         (character >= U'\u202A' && character <= U'\u202E') ||
         (character >= U'\u2066' && character <= U'\u2069');
}

bool needsEscape(char32_t character) {
  const utf8proc_category_t category = utf8proc_category(static_cast<utf8proc_int32_t>(character));
  return category == UTF8PROC_CATEGORY_CC || category == UTF8PROC_CATEGORY_ZL ||
         category == UTF8PROC_CATEGORY_ZP || turnsDirection(character);
}

// All characters that need an escape lie below U+10000.
std::string escape(char32_t character) {
  switch (character) {
    case U'\n':
      return "\\n";
    case U'\r':
      return "\\r";
    case U'\t':
      return "\\t";
    default:
      break;
  }
  constexpr std::string_view digits = "0123456789abcdef";
  std::string escaped = "\\u";
  for (const unsigned shift : {12U, 8U, 4U, 0U}) {
    escaped += digits[(character >> shift) & 0xFU];
  }
  return escaped;
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

std::string escapeControls(std::string_view text) {
  std::string shown;
  shown.reserve(text.size());
  for (std::string_view::const_iterator at = text.begin(); at != text.end();) {
    const char32_t character = utf8::next(at, text.end());
    if (needsEscape(character)) {
      shown += escape(character);
    } else {
      utf8::append(character, std::back_inserter(shown));
    }
  }
  return shown;
}

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
