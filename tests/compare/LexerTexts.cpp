#include "LexerTexts.h"

#include <cstddef>
#include <string_view>

#include "support/Text.h"

namespace compare {

namespace {

using namespace std::string_view_literals;

constexpr std::string_view pieces[] = {
    "0"sv,
    "1"sv,
    "7"sv,
    "8"sv,
    "9"sv,
    "017"sv,
    "0x"sv,
    "0X1F"sv,
    "0x1F"sv,
    "0xg"sv,
    "0o"sv,
    "0o17"sv,
    "0o18"sv,
    "0O7"sv,
    "1e"sv,
    "1e5"sv,
    "1E-5"sv,
    "1e+5"sv,
    "1e-"sv,
    "1.5e3"sv,
    ".5"sv,
    ".5e1"sv,
    "1."sv,
    "1.."sv,
    "1..2"sv,
    ".."sv,
    "."sv,
    "00"sv,
    "00.5"sv,
    "e"sv,
    "E"sv,
    "f"sv,
    "g"sv,
    "-"sv,
    "--"sv,
    "->"sv,
    "<-"sv,
    "<"sv,
    ">"sv,
    "="sv,
    "<>"sv,
    "<="sv,
    ">="sv,
    "+"sv,
    "+="sv,
    "*"sv,
    "/"sv,
    "%"sv,
    "^"sv,
    "|"sv,
    ":"sv,
    ";"sv,
    ","sv,
    "$"sv,
    "$1"sv,
    "$a"sv,
    "("sv,
    ")"sv,
    "["sv,
    "]"sv,
    "{"sv,
    "}"sv,
    "/*"sv,
    "*/"sv,
    "/**/"sv,
    "/***/"sv,
    "/****/"sv,
    "/*/"sv,
    "/* * */"sv,
    "/*\n*/"sv,
    "//"sv,
    "//x"sv,
    "//\n"sv,
    "//\r\n"sv,
    "//\r"sv,
    "// \r x\n"sv,
    "'"sv,
    "''"sv,
    "'a'"sv,
    "'\\''"sv,
    "'\\"sv,
    "'\\x'"sv,
    "'\\u12'"sv,
    "'\\u00E9'"sv,
    "'\\U0001F600'"sv,
    "'\\u00E9A'"sv,
    "'\n'"sv,
    "\""sv,
    "\"\""sv,
    "\"a'b\""sv,
    "\"\\\"\""sv,
    "`"sv,
    "``"sv,
    "```"sv,
    "````"sv,
    "`a`"sv,
    "`a``b`"sv,
    "` `"sv,
    "`\n`"sv,
    "\\"sv,
    "!"sv,
    "#"sv,
    "?"sv,
    "&"sv,
    "@"sv,
    "~"sv,
    "_"sv,
    "__"sv,
    "a_b"sv,
    "a$"sv,
    "\0"sv,
    "\x01"sv,
    "\x7F"sv,
    "\t"sv,
    "\n"sv,
    "\v"sv,
    "\f"sv,
    "\r"sv,
    "\r\n"sv,
    "\x1C"sv,
    "\x1D"sv,
    "\x1E"sv,
    "\x1F"sv,
    " "sv,
    "  "sv,
    "\xEF\xBB\xBF"sv,
    "\xC2\xA0"sv,
    "\xE2\x80\xA8"sv,
    "\xC2\xAD"sv,
    "é"sv,
    "e\xCC\x81"sv,
    "映画"sv,
    "€"sv,
    "a€"sv,
    "⟨"sv,
    "⟩"sv,
    "〈"sv,
    "〉"sv,
    "﹤"sv,
    "﹥"sv,
    "＜"sv,
    "＞"sv,
    "‐"sv,
    "‑"sv,
    "‒"sv,
    "–"sv,
    "—"sv,
    "―"sv,
    "−"sv,
    "﹘"sv,
    "﹣"sv,
    "－"sv,
    "😀"sv,
    "𝒜"sv,
    "𠀀"sv,
    "\xF4\x8F\xBF\xBF"sv,
    "\xEF\xBF\xBF"sv,
    "ſ"sv,
    "K"sv,
    "ı"sv,
    "İ"sv,
    "TRUE"sv,
    "true1"sv,
    "nul"sv,
    "NULL"sv,
    "In"sv,
    "INx"sv,
    "as"sv,
    "asc"sv,
    "ascending"sv,
    "desc"sv,
    "ALL"sv,
    "allShortestPaths"sv,
    "any"sv,
    "count"sv,
    "COUNT"sv,
    "end"sv,
    "ends"sv,
    "or"sv,
    "order"sv,
    "RETURN"sv,
    "RETURN "sv,
    "a"sv,
    "n"sv,
    "abc"sv,
};

}  // namespace

std::string drawLexerText(Drawing& drawing, Random& random) {
  std::string text;
  for (std::size_t i = 1 + random.below(5); i > 0; --i) {
    switch (random.below(8)) {
      case 0:
        text += drawing.drawToken();
        break;
      case 1:
      case 2:
        text += drawing.drawEdge();
        break;
      default:
        text += random.pick(pieces);
    }
  }
  return text;
}

vorn::WideString drawIllFormed(Drawing& drawing, Random& random) {
  constexpr std::size_t firstSurrogate = 0xD800;
  constexpr std::size_t half = 0x400;
  const auto low = static_cast<vorn::WideChar>(firstSurrogate + half + random.below(half));
  const auto high = static_cast<vorn::WideChar>(firstSurrogate + random.below(half));
  vorn::WideString text = wide(drawLexerText(drawing, random));
  switch (random.below(3)) {
    case 0:
      text += high;
      break;
    case 1:
      text.insert(text.begin(), low);
      break;
    default:
      text += low;
      text += high;
  }
  return text + (random.oneIn(2) ? wide("a") : vorn::WideString());
}

}  // namespace compare
