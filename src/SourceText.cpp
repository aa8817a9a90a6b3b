#include "SourceText.h"

#include <ParserRuleContext.h>
#include <Token.h>

#include <algorithm>

namespace vorn {

namespace {

bool isAscii(char c) { return static_cast<unsigned char>(c) < 0x80; }

bool beginsCodePoint(char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80; }

// The runtime does not count a byte order mark at the very beginning.
std::size_t markSize(std::string_view text) {
  constexpr std::string_view mark = "\xEF\xBB\xBF";
  return text.substr(0, mark.size()) == mark ? mark.size() : 0;
}

std::vector<std::size_t> codePointOffsets(std::string_view text) {
  std::vector<std::size_t> offsets;
  if (std::all_of(text.begin(), text.end(), isAscii)) {
    return offsets;
  }
  offsets.resize(text.size() + 1);
  std::size_t codePoint = 0;
  for (std::size_t i = markSize(text); i < text.size(); ++i) {
    offsets[codePoint] = i;  // until the next code point begins
    codePoint += beginsCodePoint(text[i]) ? 1 : 0;
  }
  offsets[codePoint] = text.size();
  return offsets;
}

}  // namespace

SourceText::SourceText(std::string_view utf8) : text(utf8), offsets(codePointOffsets(text)) {}

std::string_view SourceText::of(const antlr4::Token& token) const { return piece(token, token); }

std::string_view SourceText::of(const antlr4::ParserRuleContext& context) const {
  return piece(*context.getStart(), *context.getStop());
}

std::string_view SourceText::piece(const antlr4::Token& first, const antlr4::Token& last) const {
  const std::size_t begin = offset(first.getStartIndex());
  const std::size_t end = offset(last.getStopIndex() + 1);
  return text.substr(begin, end - begin);
}

std::size_t SourceText::offset(std::size_t codePoint) const {
  return offsets.empty() ? codePoint : offsets[codePoint];
}

}  // namespace vorn
