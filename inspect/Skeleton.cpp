#include "Skeleton.h"

#include <utf8.h>
#include <utf8proc.h>

#include <algorithm>
#include <cstddef>
#include <iterator>

namespace inspect {

namespace {

constexpr std::size_t npos = std::string_view::npos;

bool isOneOf(char32_t character, std::u32string_view characters) {
  return characters.find(character) != std::u32string_view::npos;
}

// The white space of the grammar.
bool isWhiteSpace(char32_t character) {
  return (character >= U'\t' && character <= U'\r') ||
         (character >= U'\u001C' && character <= U' ') || character == U'\u180E' ||
         (character >= U'\u0080' &&
          (utf8proc_category(static_cast<utf8proc_int32_t>(character)) == UTF8PROC_CATEGORY_ZS ||
           isOneOf(character, U"\u2028\u2029")));
}

char markOf(char32_t character) {
  if (isWhiteSpace(character)) {
    return ' ';
  }
  if (isOneOf(character, U"\u00AD\u2010\u2011\u2012\u2013\u2014\u2015\u2212\uFE58\uFE63\uFF0D")) {
    return marks::dash;
  }
  if (isOneOf(character, U"\u27E8\u3008\uFE64\uFF1C")) {
    return marks::leftArrowHead;
  }
  if (isOneOf(character, U"\u27E9\u3009\uFE65\uFF1E")) {
    return marks::rightArrowHead;
  }
  return 'x';
}

bool isHexadecimal(char character) {
  return std::string_view("0123456789abcdefABCDEF").find(character) != npos;
}

// Makes the skeleton from left to right.
class Drawing {
 public:
  explicit Drawing(std::string_view text) : text_(text) { skeleton_.reserve(text.size()); }

  std::string finish() {
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    if (startsWith(byteOrderMark)) {
      draw(byteOrderMark.size(), ' ');
    }
    while (at() < text_.size()) {
      drawNext();
    }
    return skeleton_;
  }

 private:
  [[nodiscard]] std::size_t at() const { return skeleton_.size(); }
  [[nodiscard]] bool startsWith(std::string_view start) const {
    return text_.substr(at(), start.size()) == start;
  }

  void draw(std::size_t count, char mark) { skeleton_.append(count, mark); }
  void drawUntil(std::size_t end, char mark) { draw(std::min(end, text_.size()) - at(), mark); }

  void drawNext() {
    const char character = text_[at()];
    if (startsWith("//")) {
      drawUntil(text_.find('\n', at()), ' ');
    } else if (startsWith("/*")) {
      drawComment();
    } else if (character == '"' || character == '\'') {
      drawString(character);
    } else if (character == '`') {
      drawQuotedName();
    } else {
      drawCharacter();
    }
  }

  void drawCharacter() {
    const std::string_view rest = text_.substr(at());
    std::string_view::const_iterator next = rest.begin();
    const char32_t character = utf8::next(next, rest.end());
    const bool ascii = character < U'\u0080' && !isWhiteSpace(character);
    // Control characters could be taken for marks.
    draw(static_cast<std::size_t>(std::distance(rest.begin(), next)),
         !ascii ? markOf(character) : (character < U' ' ? 'x' : rest.front()));
  }

  void drawComment() {
    const std::size_t start = at();
    const std::size_t close = text_.find("*/", start + 2);
    drawUntil(close == npos ? npos : close + 2, ' ');
    if (close == npos) {
      skeleton_[start] = marks::openComment;
      return;
    }
    std::size_t stars = 0;
    while (close - stars > start + 1 && text_[close - stars] == '*') {
      ++stars;
    }
    if (stars % 2 == 0) {
      skeleton_[start] = marks::openComment;
      skeleton_[close] = marks::lastStar;
    }
  }

  void drawString(char quotationMark) {
    const std::size_t start = at();
    draw(1, '"');
    while (at() < text_.size() && text_[at()] != quotationMark) {
      if (text_[at()] == '\\') {
        draw(1, isEscape(text_.substr(at() + 1)) ? 'x' : marks::badEscape);
        drawUntil(at() + 1, 'x');
      } else {
        draw(1, 'x');
      }
    }
    if (at() == text_.size()) {
      skeleton_[start] = marks::unclosed;
    } else {
      draw(1, '"');
    }
  }

  // `text` begins behind the back slash.
  static bool isEscape(std::string_view text) {
    constexpr std::size_t digits = 4;
    if (text.empty()) {
      return true;
    }
    if (text.front() == 'u' || text.front() == 'U') {
      const std::string_view code = text.substr(1, digits);
      return code.size() == digits && std::all_of(code.begin(), code.end(), isHexadecimal);
    }
    return std::string_view(R"(\'"BbFfNnRrTt)").find(text.front()) != npos;
  }

  void drawQuotedName() {
    const std::size_t start = at();
    const std::size_t close = text_.find('`', start + 1);
    drawUntil(close == npos ? npos : close + 1, 'x');
    if (close == npos) {
      skeleton_[start] = marks::unclosed;
    }
  }

  std::string_view text_;
  std::string skeleton_;
};

}  // namespace

std::string skeletonOf(std::string_view text) { return Drawing(text).finish(); }

bool isEmpty(std::string_view text) {
  return skeletonOf(text).find_first_not_of(' ') == std::string::npos;
}

}  // namespace inspect
