#pragma once

#include <rapidcheck.h>

#include <string>
#include <string_view>

/// Marks in a generated text where white space and comments may or must stand. The gaps are drawn
/// only when the text is rendered, so that one text can be rendered in many ways.
constexpr char mayGap = '\x01';
constexpr char mustGap = '\x02';

/// Draws a gap: blanks of many kinds, comments, or both.
inline rc::Gen<std::string> genGap() {
  return rc::gen::element<std::string>(" ", "  ", "\t", "\n", "\r\n", "/**/", "/* ' ` \" */",
                                       "// x\n", " /* a */ // b\n ", "\u00A0", "\u3000", "\u2028");
}

/// The text with one blank for each gap that must be there, and without the others.
inline std::string plain(std::string_view text) {
  std::string rendered;
  for (const char c : text) {
    if (c == mustGap) {
      rendered += ' ';
    } else if (c != mayGap) {
      rendered += c;
    }
  }
  return rendered;
}

/// The text with drawn gaps.
inline std::string withDrawnGaps(std::string_view text) {
  std::string rendered;
  for (const char c : text) {
    if (c == mustGap || (c == mayGap && *rc::gen::arbitrary<bool>())) {
      rendered += *genGap();
    } else if (c != mayGap) {
      rendered += c;
    }
  }
  return rendered;
}
