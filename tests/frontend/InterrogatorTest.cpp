#include <gtest/gtest.h>

#include <thread>
#include <type_traits>

#include "CypherInterrogator.h"
#include "PropertyFilterExpressionInterrogator.h"
#include "ThrowingErrorListener.h"
#include "support/Text.h"

using vorn::CypherInterrogator;
using vorn::InterrogatorBase;
using vorn::PropertyFilterExpressionInterrogator;

namespace {

TEST(Interrogators, AreNeitherCopiedNorMoved) {
  static_assert(!std::is_copy_constructible_v<CypherInterrogator>);
  static_assert(!std::is_move_constructible_v<CypherInterrogator>);
  static_assert(!std::is_copy_assignable_v<PropertyFilterExpressionInterrogator>);
  static_assert(!std::is_move_assignable_v<PropertyFilterExpressionInterrogator>);
}

TEST(Interrogators, DeriveFromTheirBaseNonPublicly) {
  static_assert(std::is_base_of_v<InterrogatorBase, CypherInterrogator>);
  static_assert(!std::is_convertible_v<CypherInterrogator*, InterrogatorBase*>);
  static_assert(std::is_base_of_v<InterrogatorBase, PropertyFilterExpressionInterrogator>);
  static_assert(!std::is_convertible_v<PropertyFilterExpressionInterrogator*, InterrogatorBase*>);
  static_assert(std::has_virtual_destructor_v<InterrogatorBase>);
}

TEST(Interrogators, ParseInTheirConstructor) {
  EXPECT_NO_THROW(CypherInterrogator(wide("RETURN 1")));
  EXPECT_THROW(CypherInterrogator(wide("n.a")), antlr4::ParseCancellationException);
  EXPECT_NO_THROW(PropertyFilterExpressionInterrogator(wide("n.a")));
  EXPECT_THROW(PropertyFilterExpressionInterrogator(wide("RETURN 1")),
               antlr4::ParseCancellationException);
}

TEST(Interrogators, FailOnTextThatIsNotWellFormedBeforeTheyParse) {
  const vorn::WideString text = wide("= = ") + static_cast<vorn::WideChar>(0xD800);
  try {
    const CypherInterrogator interrogator(text);
    FAIL();
  } catch (const antlr4::ParseCancellationException&) {
    FAIL();
  } catch (const std::exception&) {
    SUCCEED();
  }
}

TEST(Interrogators, WorkOnManyThreadsFromTheFirstCallOn) {
  std::vector<std::thread> threads;
  std::vector<std::size_t> columns(8);
  for (std::size_t& count : columns) {
    threads.emplace_back([&count] {
      for (int i = 0; i < 20; ++i) {
        CypherInterrogator interrogator(wide("MATCH (n)-[r]-(m) WHERE n.x = 1 RETURN *, count(n)"));
        count += interrogator.getResultColumnNamesAndTypes().size();
      }
    });
  }
  for (std::thread& thread : threads) {
    thread.join();
  }
  EXPECT_EQ(columns, std::vector<std::size_t>(8, 80));
}

TEST(ThrowingErrorListener, IsOneForTheProcess) {
  EXPECT_EQ(&ThrowingErrorListener::instance(), &ThrowingErrorListener::instance());
  static_assert(std::is_base_of_v<antlr4::BaseErrorListener, ThrowingErrorListener>);
  static_assert(sizeof(ThrowingErrorListener) == sizeof(antlr4::BaseErrorListener));
}

}  // namespace
