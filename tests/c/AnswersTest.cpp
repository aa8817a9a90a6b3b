// What the three questions are answered, in both encodings.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "Ask.h"

using namespace c_interface;

namespace {

class CInterface : public testing::TestWithParam<Encoding> {
 protected:
  static Told columns(std::string_view query) { return ask(GetParam(), Kind::Columns, query); }
  static Told usages(std::string_view filter) { return ask(GetParam(), Kind::Usages, filter); }
  static Told renaming(std::string_view filter, const Renames& renames) {
    return ask(GetParam(), Kind::Renaming, filter, renames);
  }
};

INSTANTIATE_TEST_SUITE_P(In, CInterface, testing::Values(Encoding::Utf8, Encoding::Utf16),
                         testing::PrintToStringParamName());

// Hosts in other languages have no header that they could be built with anew.
TEST(CNumbers, AreKept) {
  static_assert(VORN_NO_ERROR == 0 && VORN_SYNTAX == 1 && VORN_FORBIDDEN == 2 &&
                VORN_TOO_DEEP == 3 && VORN_NOT_WELL_FORMED == 4 && VORN_OUT_OF_MEMORY == 5 &&
                VORN_TOO_LARGE == 6 && VORN_BAD_ARGUMENT == 7);
  static_assert(VORN_UNKNOWN == 0 && VORN_NODE == 4 && VORN_RELATIONSHIP == 5 && VORN_PATH == 6 &&
                VORN_NODE_OR_RELATIONSHIP == 9);
}

TEST_P(CInterface, NamesColumnsAndTheirTypesInTheirOrder) {
  const Told told = columns("MATCH p = (n)-[`größe 😀`]-() RETURN p, n, `größe 😀`, n.a + 1");
  EXPECT_EQ(told.error, VORN_NO_ERROR);
  const std::vector<std::pair<std::string, std::int32_t>> expected = {
      {"p", VORN_PATH},
      {"n", VORN_NODE},
      {"größe 😀", VORN_RELATIONSHIP},
      {"n.a + 1", VORN_UNKNOWN}};
  EXPECT_EQ(told.columns, expected);
}

TEST_P(CInterface, KnowsColumnsThatAreNodesOrRelationships) {
  const Told told = columns("MATCH (n) RETURN n UNION MATCH ()-[n]-() RETURN n");
  ASSERT_EQ(told.columns.size(), 1U);
  EXPECT_EQ(told.columns[0].second, VORN_NODE_OR_RELATIONSHIP);
}

TEST_P(CInterface, AnswersAQueryThatReturnsNothing) {
  const Told told = columns("CREATE (n)");
  EXPECT_EQ(lineOf(told), "0 at 0:0  ");
}

TEST_P(CInterface, TellsWhatAFilterReadsOfWhichVariable) {
  const Told told =
      usages("n.address.city = 'x' AND `n`:Person:Adult AND m['😀'] = `n` AND `é`.`ü`");
  EXPECT_EQ(lineOf(told),
            "0 at 0:0  , `m` written m reads, `n` written `n` n reads reads :`Adult` :`Person` "
            "reads .`address` .`city`, `é` written `é` reads .`ü`");
}

// A character beyond the basic plane comes before one at its end: it is compared by surrogates.
TEST_P(CInterface, OrdersVariablesByTheirUnitsInUtf16) {
  const Told told = usages("`\uFFE0` = `😀`");
  ASSERT_EQ(told.variables.size(), 2U);
  EXPECT_EQ(told.variables[0].name, "`😀`");
  EXPECT_EQ(told.variables[1].name, "`\uFFE0`");
}

TEST_P(CInterface, RenamesVariables) {
  EXPECT_EQ(renaming("n.n = $n AND 'n' /* n */ = `m`", {{"n", "größe"}, {"`m`", "😀`"}}).renamed,
            "`größe`.n = $n AND 'n' /* n */ = `😀```");
}

TEST_P(CInterface, RenamesNothingWithoutNames) { EXPECT_EQ(renaming("n.a", {}).renamed, "n.a"); }

TEST_P(CInterface, TakesTheLaterOfTwoNewNamesForOneVariable) {
  EXPECT_EQ(renaming("n", {{"n", "a"}, {"`n`", "b"}}).renamed, "`b`");
  EXPECT_EQ(renaming("n", {{"`n`", "b"}, {"n", "a"}}).renamed, "`a`");
}

TEST_P(CInterface, UsesANewNameInBackQuotesAsItIs) {
  EXPECT_EQ(renaming("n.a", {{"n", "`x"}}).renamed, "`x.a");
  EXPECT_EQ(renaming("n.a", {{"n", ""}}).renamed, "``.a");
}

TEST_P(CInterface, RenamesInsideElementsThatAFilterMustNotHold) {
  EXPECT_EQ(renaming("any(x IN n.l WHERE x)", {{"x", "y"}}).renamed, "any(`y` IN n.l WHERE `y`)");
}

TEST_P(CInterface, TellsHowFarTheExpressionReaches) {
  const auto expectEnd = [](std::string_view expression, std::string_view rest) {
    const std::string text = std::string(expression) + std::string(rest);
    const std::size_t end = lengthIn(GetParam(), expression);
    EXPECT_EQ(usages(text).expressionEnd, end) << text;
    EXPECT_EQ(renaming(text, {}).expressionEnd, end) << text;
  };
  expectEnd("n.a = 'é😀'", "");
  expectEnd("n.a = 'é😀'", " RETURN n");
  expectEnd("n.a = 'é😀'", "RETURN n");
  expectEnd("\uFEFFn.a", " RETURN 1");
  expectEnd("n.a = 'é😀' \t/* é */ // 😀", "");
  expectEnd("n.a", " )");
  expectEnd("n.a", ")");
  expectEnd("n.a", " ) ?");
}

TEST_P(CInterface, TellsOfNoExpressionWhereThereIsNone) {
  EXPECT_EQ(columns("RETURN 1").expressionEnd, 0U);
  EXPECT_EQ(usages("n.a AND").expressionEnd, 0U);
  EXPECT_EQ(usages("any(x IN n WHERE x)").expressionEnd, 0U);
  EXPECT_FALSE(renaming("n.a AND", {}).renamed);
}

TEST_P(CInterface, DropsTheByteOrderMark) {
  EXPECT_EQ(columns("\uFEFFRETURN 1").columns.at(0).first, "1");
  EXPECT_EQ(renaming("\uFEFFn.a", {}).renamed, "n.a");
}

TEST_P(CInterface, TakesZerosInAText) {
  const std::string query("RETURN '\0' AS `\0`", 17);
  EXPECT_EQ(columns(query).columns.at(0).first, std::string(1, '\0'));
}

}  // namespace
