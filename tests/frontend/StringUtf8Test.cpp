// Compares the conversions between UTF-16 and UTF-8 with those of utf8cpp, which have no shortcut
// for ASCII.

#include <gtest/gtest.h>

#include <string>

#include "strings/StringUtf8ImplDetail.h"
#include "support/Text.h"

namespace {

using StringUtf8ImplDetail::StringUtf8ToWideCharImpl;
using StringUtf8ImplDetail::StringWideCharToUtf8Impl;

TEST(ConversionOfText, FindsACharacterBeyondAsciiAtEveryPlace) {
  constexpr std::size_t longest = 70;
  for (const char* character : {"\x7F", "\xC2\x80", "\xE9\x83\xA8", "\xF0\x9F\x98\x80"}) {
    for (std::size_t before = 0; before < longest; ++before) {
      const std::string text = std::string(before, 'a') + character + std::string(before / 2, 'b');
      EXPECT_EQ(StringUtf8ToWideCharImpl(text), wide(text)) << text;
      EXPECT_EQ(StringWideCharToUtf8Impl(wide(text)), text);
    }
  }
}

TEST(ConversionOfText, FindsRoomForAnyNumberOfCharactersBeyondAscii) {
  for (const char* piece : {"\xE9\x83\xA8", "a\xE9\x83\xA8", "\xC3\xA9 and more ASCII "}) {
    std::string text;
    for (int i = 0; i < 300; ++i) {
      text += piece;
      EXPECT_EQ(StringWideCharToUtf8Impl(wide(text)), text);
    }
  }
}

TEST(ConversionOfText, FailsOnWhatIsNotWellFormedAtEveryPlace) {
  constexpr std::size_t longest = 70;
  for (std::size_t before = 0; before < longest; ++before) {
    const std::string start(before, 'a');
    EXPECT_THROW(StringUtf8ToWideCharImpl(start + "\x80"), std::exception) << before;
    EXPECT_THROW(StringWideCharToUtf8Impl(wide(start) + vorn::WideChar{0xD800}), std::exception)
        << before;
  }
}

}  // namespace
