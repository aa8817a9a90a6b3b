// Every kind of error, and where each is.

#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "Ask.h"
#include "nesting/Repeated.h"

using namespace c_interface;

namespace {

class CErrors : public testing::TestWithParam<Encoding> {
 protected:
  static Told columns(std::string_view query) { return ask(GetParam(), Kind::Columns, query); }
  static Told usages(std::string_view filter) { return ask(GetParam(), Kind::Usages, filter); }
  static Told renaming(std::string_view filter) { return ask(GetParam(), Kind::Renaming, filter); }

  static void expectPlace(const Told& told, std::size_t line, std::size_t column,
                          std::string_view before) {
    EXPECT_EQ(told.error, VORN_SYNTAX) << before;
    EXPECT_EQ(told.line, line) << before;
    EXPECT_EQ(told.column, column) << before;
    EXPECT_EQ(told.offset, lengthIn(GetParam(), before)) << before;
  }
};

INSTANTIATE_TEST_SUITE_P(In, CErrors, testing::Values(Encoding::Utf8, Encoding::Utf16),
                         testing::PrintToStringParamName());

TEST_P(CErrors, TellThePlaceInAQueryOfManyConditions) {
  const std::string before = "MATCH (n) WHERE " + repeated("(n.a=1) AND ", 200) + "n.b = 1 ";
  expectPlace(columns(before + "RETRUN n"), 1, before.size(), before);
}

TEST_P(CErrors, TellTheRuntimesWordsForAWrongQuery) {
  const Told told = columns("MATCH (n) RETRUN n");
  expectPlace(told, 1, 10, "MATCH (n) ");
  EXPECT_EQ(told.message, "no viable alternative at input 'MATCH (n) RETRUN'");
  EXPECT_EQ(told.element, "");
}

TEST_P(CErrors, TellTheRuntimesWordsForAWrongFilter) {
  for (const Told& told : {usages("n.a AND"), renaming("n.a AND")}) {
    expectPlace(told, 1, 7, "n.a AND");
    EXPECT_EQ(told.message, "mismatched input '<EOF>' expecting SP");
  }
}

TEST_P(CErrors, CountCodePointsInALineAndUnitsInTheText) {
  struct Place {
    std::string before;
    std::size_t line;
    std::size_t column;
  };
  for (const auto& [before, line, column] :
       {Place{"", 1, 0}, Place{"\uFEFF", 1, 0}, Place{"\n\n", 3, 0}, Place{"\r\n\r", 2, 1},
        Place{"RETURN 'é😀' + ", 1, 14}, Place{"\uFEFFRETURN 'é😀' + ", 1, 14},
        Place{"RETURN '😀\n\n é' + ", 3, 6}, Place{"RETURN '\n\uFEFF' + ", 2, 5},
        Place{"/*\r\u2028*/", 1, 6}}) {
    expectPlace(columns(before + "?"), line, column, before);
  }
  expectPlace(usages("'😀\n\n é' + ?"), 3, 6, "'😀\n\n é' + ");
  expectPlace(usages("\uFEFFé😀"), 1, 1, "\uFEFFé");
}

TEST_P(CErrors, AtTheEndOfTheTextHaveItsLengthForAnOffset) {
  for (const std::string query : {"", "\uFEFF", "MATCH ", "RETURN 1 +", "MATCH (n)\n"}) {
    EXPECT_EQ(columns(query).offset, lengthIn(GetParam(), query)) << query;
    EXPECT_EQ(columns(query).error, VORN_SYNTAX) << query;
  }
}

TEST_P(CErrors, TellAMessageWhole) {
  const std::string zero(1, '\0');
  EXPECT_EQ(usages("n.a = '" + zero + "é").message, "token recognition error at: ''" + zero + "é'");
  EXPECT_EQ(columns("RETURN " + zero).message, "token recognition error at: '" + zero + "'");
}

TEST_P(CErrors, NameTheElementThatAFilterMustNotHold) {
  for (const auto& [filter, element] : {
           std::pair("[x IN n WHERE x]", "OC_ListComprehension"),
           std::pair("[(n)-[r]-() | r]", "OC_PatternComprehension"),
           std::pair("n AND any(x IN [x IN n | x] WHERE x)", "OC_Quantifier"),
           std::pair("(n)--() AND any(x IN n WHERE x)", "OC_PatternPredicate"),
           std::pair("EXISTS { RETURN 1 }", "OC_ExistentialSubquery"),
       }) {
    const Told told = usages(filter);
    EXPECT_EQ(told.error, VORN_FORBIDDEN) << filter;
    EXPECT_EQ(told.element, element);
    EXPECT_EQ(told.message, "The openCypher element '' of type '" + std::string(element) +
                                "' is forbidden in a property filter expression.");
    EXPECT_EQ(told.line, 0U);
    EXPECT_EQ(renaming(filter).error, VORN_NO_ERROR) << filter;
  }
}

TEST_P(CErrors, RefuseWhatNestsTooDeeply) {
  const std::string deep = repeated("(", 200'000) + "1" + repeated(")", 200'000);
  for (const Told& told : {columns("RETURN " + deep), usages(deep), renaming(deep)}) {
    EXPECT_EQ(told.error, VORN_TOO_DEEP);
    EXPECT_EQ(told.message, "the openCypher text nests too deeply for the stack");
    EXPECT_EQ(told.line, 0U);
  }
}

TEST_P(CErrors, RefuseAFilterThatTakesTooMuchWork) {
  const std::string ambiguous = "[x IN " + repeated("(a) + ", 3000) + "?";
  EXPECT_EQ(usages(ambiguous).error, VORN_TOO_LARGE);
  EXPECT_EQ(usages(ambiguous).message, "the openCypher text takes too long to be understood");
}

// The query is known to be wrong; only the place of the error is not searched.
TEST_P(CErrors, TellOfAWrongQueryThatCannotBeSearched) {
  for (const auto& [query, reason] :
       {std::pair("RETURN [x IN " + repeated("(a) + ", 3000) + "?",
                  "takes too long to be understood"),
        std::pair("RETURN " + repeated("(", 3000), "nests too deeply for the stack")}) {
    const Told told = columns(query);
    EXPECT_EQ(told.error, VORN_SYNTAX);
    EXPECT_EQ(told.line, 0U);
    EXPECT_EQ(told.column, 0U);
    EXPECT_EQ(told.offset, 0U);
    EXPECT_EQ(told.message,
              std::string("the text is no openCypher query; the place of its error is unknown: "
                          "the openCypher text ") +
                  reason);
  }
}

}  // namespace
