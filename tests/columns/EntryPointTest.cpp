#include <gtest/gtest.h>

#include <type_traits>

#include "support/Columns.h"

using vorn::CypherType;
using vorn::GetOutputNamesAndTypes;
using vorn::WideString;

namespace {

using WideColumns = std::vector<std::pair<WideString, CypherType>>;

WideColumns someColumns() {
  return {{wide("before"), CypherType::Path}, {wide("as well"), CypherType::Node}};
}

TEST(GetOutputNamesAndTypes, HasTheNumbersThatHostsStore) {
  EXPECT_EQ(static_cast<int>(CypherType::Unknown), 0);
  EXPECT_EQ(static_cast<int>(CypherType::Node), 4);
  EXPECT_EQ(static_cast<int>(CypherType::Relationship), 5);
  EXPECT_EQ(static_cast<int>(CypherType::Path), 6);
  EXPECT_EQ(static_cast<int>(CypherType::NodeOrRelationship), 9);
  EXPECT_EQ(sizeof(CypherType), 4U);
}

TEST(GetOutputNamesAndTypes, PromisesNotToThrow) {
  static_assert(noexcept(
      GetOutputNamesAndTypes(std::declval<const WideString&>(), std::declval<WideColumns&>())));
  static_assert(std::is_same_v<decltype(GetOutputNamesAndTypes(std::declval<const WideString&>(),
                                                               std::declval<WideColumns&>())),
                               std::int32_t>);
}

TEST(GetOutputNamesAndTypes, RefusesAnEmptyTextAndLeavesTheVectorAsItWas) {
  WideColumns columns = someColumns();
  EXPECT_EQ(GetOutputNamesAndTypes(WideString(), columns), 1);
  EXPECT_EQ(columns, someColumns());
}

TEST(GetOutputNamesAndTypes, EmptiesTheVectorForAQueryWithoutAProjection) {
  WideColumns columns = someColumns();
  EXPECT_EQ(GetOutputNamesAndTypes(wide("CREATE (n)"), columns), 0);
  EXPECT_TRUE(columns.empty());
}

TEST(GetOutputNamesAndTypes, ReplacesTheVectorAndDoesNotExtendIt) {
  WideColumns columns = someColumns();
  EXPECT_EQ(GetOutputNamesAndTypes(wide("MATCH (n) RETURN n"), columns), 0);
  EXPECT_EQ(columns, (WideColumns{{wide("n"), CypherType::Node}}));
}

TEST(GetOutputNamesAndTypes, GivesNoPartialListWhenTheErrorComesLate) {
  WideColumns columns = someColumns();
  EXPECT_EQ(GetOutputNamesAndTypes(wide("MATCH (n) RETURN n UNION MATCH (m) RETURN"), columns), 1);
  EXPECT_EQ(columns, someColumns());
}

TEST(GetOutputNamesAndTypes, RefusesALexicalErrorAnywhere) {
  EXPECT_EQ(analyse("MATCH (n) RETURN n ?"), refused());
  EXPECT_EQ(analyse("! MATCH (n) RETURN n"), refused());
  EXPECT_EQ(analyse("MATCH (n) WHERE n.a = 'open RETURN n"), refused());
}

TEST(GetOutputNamesAndTypes, KeepsNothingBetweenCalls) {
  EXPECT_EQ(analyse("MATCH (n) RETURN n"), answered({{"n", CypherType::Node}}));
  EXPECT_EQ(analyse("RETURN n"), answered({{"n", CypherType::Unknown}}));
}

TEST(GetOutputNamesAndTypes, AnswersIntoTheVectorThatHoldsTheLastAnswer) {
  WideColumns columns;
  ASSERT_EQ(GetOutputNamesAndTypes(wide("MATCH (n) RETURN n, n.a"), columns), 0);
  ASSERT_EQ(GetOutputNamesAndTypes(wide("MATCH p = (n) RETURN p"), columns), 0);
  EXPECT_EQ(columns, (WideColumns{{wide("p"), CypherType::Path}}));
}

TEST(GetOutputNamesAndTypes, TakesAQueryThatIsTheNameOfAColumn) {
  WideColumns columns{{wide("MATCH (n) RETURN n"), CypherType::Unknown}};
  EXPECT_EQ(GetOutputNamesAndTypes(columns.front().first, columns), 0);
  EXPECT_EQ(columns, (WideColumns{{wide("n"), CypherType::Node}}));
}

}  // namespace
