// Tests the members that depend on the locale, in real locales.

#include <gtest/gtest.h>

#include <clocale>
#include <string>
#include <vector>

#include "ScopedLocale.h"
#include "Strings.h"

using namespace std::string_literals;

namespace {

const std::vector<std::string> twoByteLocales{"ja_JP.eucJP", "ko_KR.eucKR", "zh_TW.EUC-TW",
                                              "zh_HK",       "zh_CN",       "zh_SG"};
// A character that no legacy East Asian encoding has.
constexpr auto strange = "\U0001F600";

String withoutValidText() {
  String text = stringOf("abc");
  const vorn::WideString loneSurrogate(1, static_cast<vorn::WideChar>(0xD800));
  text.ConcatImpl(loneSurrogate.c_str(), 1);
  return text;
}

}  // namespace

TEST(TheByteLength, IsThatOfTheTextInTheLocalesEncoding) {
  const String latin = stringOf("abc");
  const String han = stringOf("a\u4E2D\u6587");
  for (const std::string& name : twoByteLocales) {
    SCOPED_TRACE(name);
    const ScopedLocale locale(name);
    EXPECT_EQ(latin.GetByteLength(), 3U);
    EXPECT_EQ(han.GetByteLength(), 5U);
    EXPECT_EQ(String().GetByteLength(), 0U);
  }
  const ScopedLocale utf8("en_US.UTF-8");
  EXPECT_EQ(han.GetByteLength(), 7U);
  EXPECT_EQ(stringOf(strange).GetByteLength(), 4U);
}

TEST(TheByteLength, CountsLongSequencesOfTheEncoding) {
  // Half-width katakana take two bytes and JIS X 0212 three in EUC-JP, planes from 2 on four in
  // EUC-TW.
  const ScopedLocale japanese("ja_JP.eucJP");
  EXPECT_EQ(stringOf("\uFF71").GetByteLength(), 2U);
  EXPECT_EQ(stringOf("\u4E02").GetByteLength(), 3U);
  const ScopedLocale taiwanese("zh_TW.EUC-TW");
  EXPECT_EQ(stringOf("\u4E42").GetByteLength(), 4U);
}

TEST(TheByteLength, CountsPairsThatAreOneCharacterOfTheEncoding) {
  const ScopedLocale locale("zh_HK");
  EXPECT_EQ(stringOf("\u00CA\u0304").GetByteLength(), 2U);
  EXPECT_EQ(stringOf("\u00CA").GetByteLength(), 2U);
  // The conversion works in chunks, which must not separate surrogate pairs.
  std::string pairs = "x";
  for (int i = 0; i < 1000; ++i) {
    pairs += "\u00CA\u0304";
  }
  EXPECT_EQ(stringOf(pairs).GetByteLength(), 2001U);
  EXPECT_EQ(stringOf(pairs.substr(1)).GetByteLength(), 2000U);
}

TEST(TheByteLength, KeepsSurrogatePairsTogetherInALongText) {
  const ScopedLocale locale("en_US.UTF-8");
  std::string faces;
  for (int i = 0; i < 1000; ++i) {
    faces += strange;
  }
  EXPECT_EQ(stringOf(faces).GetByteLength(), 4000U);
  EXPECT_EQ(stringOf("x" + faces).GetByteLength(), 4001U);
}

TEST(TheByteLength, IsTwicePerCodeUnitInEastAsiaWhenTheTextCannotBeEncoded) {
  for (const std::string& name : twoByteLocales) {
    SCOPED_TRACE(name);
    const ScopedLocale locale(name);
    EXPECT_EQ(stringOf("a\U0001F600").GetByteLength(), 6U);
    EXPECT_EQ(withoutValidText().GetByteLength(), 8U);
  }
}

TEST(TheByteLength, IsOncePerCodeUnitElsewhereWhenTheTextCannotBeEncoded) {
  for (const char* const name : {"C", "en_US.UTF-8", "tr_TR.UTF-8"}) {
    SCOPED_TRACE(name);
    const ScopedLocale locale(name);
    EXPECT_EQ(withoutValidText().GetByteLength(), 4U);
  }
  const ScopedLocale c("C");
  EXPECT_EQ(stringOf("a\u4E2D\U0001F600").GetByteLength(), 4U);
}

TEST(TheByteLength, TakesNoHalfOfAPairForACharacter) {
  const ScopedLocale locale("en_US.UTF-8");
  const auto high = static_cast<vorn::WideChar>(0xD800);
  const auto low = static_cast<vorn::WideChar>(0xDC00);
  EXPECT_EQ(String(vorn::WideString{high, low}.c_str()).GetByteLength(), 4U);
  EXPECT_EQ(String(vorn::WideString{high, 'a', 'b'}.c_str()).GetByteLength(), 3U);
  EXPECT_EQ(String(vorn::WideString{high, high, low}.c_str()).GetByteLength(), 3U);
  EXPECT_EQ(String(vorn::WideString{low, high}.c_str()).GetByteLength(), 2U);
}

TEST(TheByteLength, LooksAtTheTextBeforeTheFirstZeroButEstimatesTheWhole) {
  String text = stringOf("ab");
  text.ConcatImpl(wide("").c_str(), 1);
  text.ConcatImpl(wide(strange).c_str(), 2);
  const ScopedLocale locale("ja_JP.eucJP");
  EXPECT_EQ(text.GetByteLength(), 2U);

  String beforeZero = stringOf(strange);
  beforeZero.ConcatImpl(wide("").c_str(), 1);
  EXPECT_EQ(beforeZero.GetByteLength(), 6U);
}

TEST(TheEucByteLength, DoublesForTaiwanAndHongKongWhatTheEncodingTells) {
  const String han = stringOf("a\u4E2D\u6587");
  for (const char* const name : {"zh_TW.EUC-TW", "zh_HK"}) {
    SCOPED_TRACE(name);
    const ScopedLocale locale(name);
    EXPECT_EQ(han.GetEucByteLength(), 10U);
    EXPECT_EQ(String().GetEucByteLength(), 0U);
  }
  const ScopedLocale utf8("zh_TW.UTF-8");
  EXPECT_EQ(han.GetEucByteLength(), 14U);
}

TEST(TheEucByteLength, QuadruplesForTaiwanAndHongKongTheCodeUnitsOfWhatCannotBeEncoded) {
  for (const char* const name : {"zh_TW.EUC-TW", "zh_HK"}) {
    SCOPED_TRACE(name);
    const ScopedLocale locale(name);
    EXPECT_EQ(stringOf("a\U0001F600").GetEucByteLength(), 12U);
  }
  const ScopedLocale utf8("zh_TW.UTF-8");
  EXPECT_EQ(withoutValidText().GetEucByteLength(), 16U);
}

TEST(TheEucByteLength, IsTheByteLengthEverywhereElse) {
  const String han = stringOf("a\u4E2D\u6587");
  for (const char* const name :
       {"ja_JP.eucJP", "ko_KR.eucKR", "zh_CN", "zh_SG", "zh_MO.UTF-8", "C", "en_US.UTF-8"}) {
    SCOPED_TRACE(name);
    const ScopedLocale locale(name);
    EXPECT_EQ(han.GetEucByteLength(), han.GetByteLength());
    EXPECT_EQ(withoutValidText().GetEucByteLength(), withoutValidText().GetByteLength());
  }
}

TEST(TheByteLength, FollowsALocaleOfTheThread) {
  const String text = stringOf("\u4E2D");
  const locale_t taiwanese = [] {
    const ScopedLocale process("zh_TW.EUC-TW");
    return duplocale(LC_GLOBAL_LOCALE);
  }();
  const ScopedLocale process("C");
  EXPECT_EQ(text.GetEucByteLength(), 1U);
  const locale_t before = uselocale(taiwanese);
  EXPECT_EQ(text.GetEucByteLength(), 4U);
  EXPECT_EQ(stringOf(strange).GetEucByteLength(), 8U);
  uselocale(before);
  freelocale(taiwanese);
}

TEST(ComparingWithoutCase, FoldsAsTheLocaleDoes) {
  const String text = stringOf("\u00C4I");
  {
    const ScopedLocale c("C");
    EXPECT_EQ(text.CompareNoCase(wide("\u00C4i").c_str()), 0);
    EXPECT_NE(text.CompareNoCase(wide("\u00E4i").c_str()), 0);
  }
  {
    const ScopedLocale english("en_US.UTF-8");
    EXPECT_EQ(text.CompareNoCase(wide("\u00E4i").c_str()), 0);
  }
  const ScopedLocale turkish("tr_TR.UTF-8");
  EXPECT_NE(text.CompareNoCase(wide("\u00E4i").c_str()), 0);
  EXPECT_EQ(text.CompareNoCase(wide("\u00E4\u0131").c_str()), 0);
}

TEST(ComparingWithoutCase, FoldsOneCodeUnitAtATime) {
  const ScopedLocale locale("en_US.UTF-8");
  // Two letters that differ in case, but take two code units each.
  EXPECT_NE(stringOf("\U00010400").CompareNoCase(wide("\U00010428").c_str()), 0);
}

TEST(NarrowText, IsReadInTheLocalesEncoding) {
  {
    const ScopedLocale japanese("ja_JP.eucJP");
    EXPECT_EQ(utf8Of(BString("a\xC3\xE6\x8E\xB1", 0)), "a\u4E2D\uFF71");
    EXPECT_TRUE(bstringOf("\u4E2D") == "\xC3\xE6");
    EXPECT_TRUE(bstringOf("\u4E2C") < "\xC3\xE6");
  }
  {
    const ScopedLocale hongKong("zh_HK");
    EXPECT_EQ(utf8Of(BString("\x88\x62", 0)), "\u00CA\u0304");
  }
  const ScopedLocale utf8("en_US.UTF-8");
  EXPECT_EQ(utf8Of(BString("\u4E2D\U0001F600", 0)), "\u4E2D\U0001F600");
  EXPECT_EQ(BString("\u4E2D\U0001F600", 0).GetLength(), 3U);
}

TEST(NarrowText, ThatIsLongIsReadWhole) {
  const ScopedLocale locale("zh_HK");
  std::string narrowPairs = "x";
  std::string expected = "x";
  for (int i = 0; i < 1000; ++i) {
    narrowPairs += "\x88\x62";
    expected += "\u00CA\u0304";
  }
  EXPECT_EQ(utf8Of(BString(narrowPairs.c_str(), 0)), expected);
  EXPECT_EQ(utf8Of(BString(narrowPairs.c_str() + 1, 0)), expected.substr(1));
}

TEST(NarrowText, ThatIsNotWellFormedGivesNull) {
  for (const char* const name : {"ja_JP.eucJP", "ko_KR.eucKR", "zh_HK", "en_US.UTF-8"}) {
    SCOPED_TRACE(name);
    const ScopedLocale locale(name);
    EXPECT_TRUE(BString("abc\xFF", 0) == nullptr);
    EXPECT_TRUE(BString() == "abc\xFF");
    EXPECT_FALSE(bstringOf("abc") == "abc\xFF");
    EXPECT_FALSE(bstringOf("abc") < "abc\xFF");
  }
}
