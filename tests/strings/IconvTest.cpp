// Tests that lengths agree with the results of iconv, if the encoding has the text.

#include <gtest/gtest.h>
#include <iconv.h>
#include <langinfo.h>

#include <array>
#include <cstddef>
#include <optional>
#include <ostream>
#include <stdexcept>
#include <string>

#include "ScopedLocale.h"
#include "Strings.h"

namespace {

// Encodes UTF-16 in the encoding of the locale.
class Encoder {
 public:
  Encoder() : descriptor(iconv_open(nl_langinfo(CODESET), "UTF-16LE")) {
    if (descriptor == reinterpret_cast<iconv_t>(-1)) {
      throw std::runtime_error("iconv cannot encode " + std::string(nl_langinfo(CODESET)));
    }
  }
  Encoder(const Encoder&) = delete;
  Encoder& operator=(const Encoder&) = delete;
  Encoder(Encoder&&) = delete;
  Encoder& operator=(Encoder&&) = delete;
  ~Encoder() { iconv_close(descriptor); }

  // Empty if the encoding lacks a character of the text.
  std::optional<std::size_t> lengthOf(vorn::WideString text) {
    std::array<char, 64> bytes{};
    char* in = reinterpret_cast<char*>(text.data());
    std::size_t inLeft = text.size() * sizeof(vorn::WideChar);
    char* out = bytes.data();
    std::size_t outLeft = bytes.size();
    iconv(descriptor, nullptr, nullptr, nullptr, nullptr);
    constexpr auto failed = static_cast<std::size_t>(-1);
    if (iconv(descriptor, &in, &inLeft, &out, &outLeft) == failed ||
        iconv(descriptor, nullptr, nullptr, &out, &outLeft) == failed) {
      return std::nullopt;
    }
    return bytes.size() - outLeft;
  }

 private:
  iconv_t descriptor;
};

// A locale, and its byte length of a code unit that it cannot encode.
struct Case {
  const char* locale;
  std::size_t estimatePerUnit;
};

std::ostream& operator<<(std::ostream& out, const Case& theCase) { return out << theCase.locale; }

class TheByteLengthAndIconv : public testing::TestWithParam<Case> {};

vorn::WideString textOf(char32_t codePoint) {
  if (codePoint < 0x10000) {
    return {static_cast<vorn::WideChar>(codePoint)};
  }
  const char32_t offset = codePoint - 0x10000;
  return {static_cast<vorn::WideChar>(0xD800 + (offset >> 10)),
          static_cast<vorn::WideChar>(0xDC00 + (offset & 0x3FF))};
}

}  // namespace

TEST_P(TheByteLengthAndIconv, AgreeOnEveryCodePoint) {
  const ScopedLocale locale(GetParam().locale);
  Encoder encoder;
  std::size_t encodable = 0;
  // The later planes are left out: they have few characters.
  for (char32_t codePoint = 1; codePoint < 0x30000; ++codePoint) {
    const vorn::WideString text = textOf(codePoint);
    const std::optional<std::size_t> encoded = encoder.lengthOf(text);
    encodable += encoded ? 1U : 0U;
    ASSERT_EQ(String(text.c_str()).GetByteLength(),
              encoded.value_or(text.size() * GetParam().estimatePerUnit))
        << "U+" << std::hex << static_cast<std::uint32_t>(codePoint);
  }
  EXPECT_GE(encodable, 127U);
}

TEST_P(TheByteLengthAndIconv, AgreeOnAllPairsOfAFewCharacters) {
  const ScopedLocale locale(GetParam().locale);
  Encoder encoder;
  const vorn::WideString characters =
      wide("a~\u00CA\u00EA\u0304\u030C\u00A5\u203E\u4E2D\u9EC4\uAC00\uFF71\uFFE3");
  for (const vorn::WideChar first : characters) {
    for (const vorn::WideChar second : characters) {
      const vorn::WideString text{first, second, 'x'};
      EXPECT_EQ(String(text.c_str()).GetByteLength(),
                encoder.lengthOf(text).value_or(text.size() * GetParam().estimatePerUnit))
          << narrow(text);
    }
  }
}

INSTANTIATE_TEST_SUITE_P(InRealLocales, TheByteLengthAndIconv,
                         testing::Values(Case{"ja_JP.eucJP", 2}, Case{"ko_KR.eucKR", 2},
                                         Case{"zh_TW.EUC-TW", 2}, Case{"zh_HK", 2},
                                         Case{"zh_CN", 2}, Case{"zh_SG", 2}, Case{"C", 1},
                                         Case{"en_US.UTF-8", 1}));
