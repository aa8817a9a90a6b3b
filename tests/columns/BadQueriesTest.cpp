#include <gtest/gtest.h>

#include "support/Columns.h"

using vorn::CypherType;
using vorn::WideChar;
using vorn::WideString;

namespace {

constexpr auto lead = static_cast<WideChar>(0xD800);
constexpr auto trail = static_cast<WideChar>(0xDC00);

TEST(BadQueries, OfWhiteSpaceOnlyAreRefused) {
  EXPECT_EQ(analyse(" \t\r\n"), refused());
  EXPECT_EQ(analyse("/* nothing */ // here"), refused());
  EXPECT_EQ(analyse(";"), refused());
}

TEST(BadQueries, WithASecondStatementAreRefused) {
  EXPECT_EQ(analyse("RETURN 1; RETURN 2"), refused());
  EXPECT_EQ(analyse("RETURN 1;;"), refused());
  EXPECT_EQ(analyse("RETURN 1 ;"), answered({{"1", CypherType::Unknown}}));
}

TEST(BadQueries, WithAnUnpairedSurrogateAreRefused) {
  const WideString before = wide("RETURN '");
  const WideString after = wide("'");
  for (const WideString& middle : {WideString{lead}, WideString{trail}, WideString{trail, lead},
                                   WideString{lead, lead, trail}, WideString{lead, 'a'}}) {
    EXPECT_EQ(analyse(before + middle + after), refused());
  }
  EXPECT_EQ(analyse(before + WideString{lead, trail} + after),
            answered({{"'\U00010000'", CypherType::Unknown}}));
}

TEST(BadQueries, ThatEndInALeadSurrogateAreRefused) {
  EXPECT_EQ(analyse(wide("RETURN 1 //") + WideString{lead}), refused());
  EXPECT_EQ(analyse(WideString{lead}), refused());
}

TEST(BadQueries, WithZeroCharactersOutsideAStringAreRefused) {
  const WideString zero(1, WideChar{});
  EXPECT_EQ(analyse(wide("RETURN 1") + zero), refused());
  EXPECT_EQ(analyse(zero), refused());
  EXPECT_EQ(analyse(wide("RETURN '") + zero + wide("' AS x")),
            answered({{"x", CypherType::Unknown}}));
}

TEST(BadQueries, KeepZeroCharactersInNames) {
  using namespace std::string_literals;
  EXPECT_EQ(analyse("MATCH (`a\0b`) RETURN `a\0b`"s), answered({{"a\0b"s, CypherType::Node}}));
}

TEST(BadQueries, MayBeginWithAByteOrderMark) {
  EXPECT_EQ(analyse("\uFEFFMATCH (n) RETURN n"), answered({{"n", CypherType::Node}}));
  EXPECT_EQ(analyse("\uFEFF\uFEFFMATCH (n) RETURN n"), refused());
  EXPECT_EQ(analyse("MATCH (n) RETURN n\uFEFF"), refused());
  EXPECT_EQ(analyse("\uFEFF"), refused());
}

TEST(BadQueries, KeepNoncharactersInStrings) {
  EXPECT_EQ(analyse("RETURN '\uFFFE\uFFFF\U0010FFFF'"),
            answered({{"'\uFFFE\uFFFF\U0010FFFF'", CypherType::Unknown}}));
}

TEST(BadQueries, OfAMegabyteOfOneStringAreAnswered) {
  const std::string literal = "'" + std::string(1 << 20, 'x') + "'";
  EXPECT_EQ(analyse("RETURN " + literal), answered({{literal, CypherType::Unknown}}));
}

TEST(BadQueries, OfAMegabyteOfAnOpenStringAreRefused) {
  EXPECT_EQ(analyse("RETURN '" + std::string(1 << 20, 'x')), refused());
}

TEST(BadQueries, OfAMegabyteOfBackQuotesAreAnswered) {
  const std::string quotes(1 << 20, '`');
  EXPECT_EQ(analyse("RETURN 1 AS " + quotes),
            answered({{std::string((1 << 19) - 1, '`'), CypherType::Unknown}}));
}

TEST(BadQueries, CutAnywhereAreAnsweredOrRefused) {
  const std::string query =
      "MATCH p = (a:`A b` {k: [1, 2.5e-3]})-[r:R|:S*1..2]->(b) WHERE a.x STARTS WITH 'y' "
      "WITH *, count(r) AS c RETURN DISTINCT p, c ORDER BY c SKIP 1 LIMIT 2 UNION ALL RETURN 1, 2";
  for (std::size_t length = 0; length < query.size(); ++length) {
    const ColumnsAnswer answer = analyse(query.substr(0, length));
    EXPECT_TRUE(answer.status == 0 || answer == refused()) << query.substr(0, length);
  }
}

}  // namespace
