#include <gtest/gtest.h>

#include "CypherInterrogator.h"
#include "support/Text.h"

using vorn::CypherInterrogator;
using vorn::CypherType;

namespace {

TEST(CypherInterrogator, ComputesTheColumnsOnce) {
  CypherInterrogator interrogator(wide("MATCH (n) RETURN n"));
  auto& columns = interrogator.getResultColumnNamesAndTypes();
  ASSERT_EQ(columns.size(), 1U);
  columns.front().second = CypherType::Path;
  EXPECT_EQ(interrogator.getResultColumnNamesAndTypes().front().second, CypherType::Path);
  EXPECT_EQ(&interrogator.getResultColumnNamesAndTypes(), &columns);
  EXPECT_EQ(columns.size(), 1U);
}

TEST(CypherInterrogator, ComputesAnEmptyAnswerAnewWithTheSameOutcome) {
  CypherInterrogator interrogator(wide("CREATE (n)"));
  EXPECT_TRUE(interrogator.getResultColumnNamesAndTypes().empty());
  EXPECT_TRUE(interrogator.getResultColumnNamesAndTypes().empty());
}

}  // namespace
