#include <gtest/gtest.h>

#include <ostream>

#include "ScopedLocale.h"
#include "strings/HestraLocale.h"

namespace {

struct Identifiers {
  const char* locale;
  int language;
  int country;
};

std::ostream& operator<<(std::ostream& out, const Identifiers& identifiers) {
  return out << identifiers.locale;
}

class TheLocale : public testing::TestWithParam<Identifiers> {};

}  // namespace

TEST_P(TheLocale, HasTheIdentifiersOfThePlatform) {
  const ScopedLocale locale(GetParam().locale);
  EXPECT_EQ(HestraLocale::GetLangID(), GetParam().language);
  EXPECT_EQ(HestraLocale::GetCountryID(), GetParam().country);
}

INSTANTIATE_TEST_SUITE_P(
    ByName, TheLocale,
    testing::Values(Identifiers{"ja_JP.eucJP", 17, 0}, Identifiers{"japanese", 17, 0},
                    Identifiers{"ko_KR.eucKR", 18, 0}, Identifiers{"korean", 18, 0},
                    Identifiers{"zh_TW.EUC-TW", 4, 1}, Identifiers{"zh_TW.UTF-8", 4, 1},
                    Identifiers{"zh_SG@variant", 4, 4}, Identifiers{"zh@variant", 4, 0},
                    Identifiers{"japanese.euc", 17, 0}, Identifiers{"zh_CN", 4, 2},
                    Identifiers{"zh_HK", 4, 3}, Identifiers{"zh_SG", 4, 4},
                    Identifiers{"zh_MO.UTF-8", 4, 5}, Identifiers{"zh", 4, 0},
                    Identifiers{"C", 0, 0}, Identifiers{"en_US.UTF-8", 0, 0},
                    Identifiers{"en_HK.UTF-8", 0, 0}, Identifiers{"tr_TR.UTF-8", 0, 0}));
