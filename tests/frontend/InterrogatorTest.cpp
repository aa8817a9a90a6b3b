#include <Exceptions.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <thread>
#include <type_traits>
#include <vector>

#include "CypherInterrogator.h"
#include "PropertyFilterExpressionInterrogator.h"
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

// Expects that the conversion of the text throws, before any parsing, and throws no syntax error.
template <typename Interrogator>
bool failsToConvert(const vorn::WideString& text) {
  try {
    const Interrogator interrogator(text);
    return false;
  } catch (const antlr4::ParseCancellationException&) {
    return false;
  } catch (const std::exception&) {
    return true;
  }
}

TEST(Interrogators, FailOnTextThatIsNotWellFormedBeforeTheyParse) {
  constexpr auto lead = static_cast<vorn::WideChar>(0xD800);
  constexpr auto trail = static_cast<vorn::WideChar>(0xDC00);
  for (const vorn::WideString& unpaired :
       {vorn::WideString{lead}, vorn::WideString{trail}, vorn::WideString{trail, lead},
        vorn::WideString{lead, lead, trail}, vorn::WideString{lead, 'a'}}) {
    for (const vorn::WideString& text : {wide("= = ") + unpaired, unpaired + wide(" = ="),
                                         wide("'") + unpaired + wide("'"), unpaired}) {
      EXPECT_TRUE(failsToConvert<CypherInterrogator>(text));
      EXPECT_TRUE(failsToConvert<PropertyFilterExpressionInterrogator>(text));
    }
  }
}

TEST(Interrogators, LeaveOutAByteOrderMarkAtTheBeginningOnly) {
  EXPECT_NO_THROW(CypherInterrogator(wide("\uFEFFRETURN 1")));
  EXPECT_NO_THROW(PropertyFilterExpressionInterrogator(wide("\uFEFFn.a")));
  EXPECT_THROW(CypherInterrogator(wide("\uFEFF\uFEFFRETURN 1")),
               antlr4::ParseCancellationException);
  EXPECT_THROW(CypherInterrogator(wide("RETURN\uFEFF 1")), antlr4::ParseCancellationException);
}

TEST(Interrogators, ReadPastZeroCharacters) {
  const vorn::WideString zero(1, vorn::WideChar{});
  EXPECT_NO_THROW(CypherInterrogator(wide("RETURN '") + zero + wide("'")));
  EXPECT_NO_THROW(CypherInterrogator(wide("RETURN 1 /*") + zero + wide("*/")));
  EXPECT_THROW(CypherInterrogator(wide("RETURN '") + zero + wide("' ?")),
               antlr4::ParseCancellationException);
  EXPECT_THROW(CypherInterrogator(wide("RETURN 1") + zero), antlr4::ParseCancellationException);
}

TEST(Interrogators, WantAText) {
  const vorn::WideString empty;
  EXPECT_THROW(CypherInterrogator{empty}, antlr4::ParseCancellationException);
  EXPECT_THROW(PropertyFilterExpressionInterrogator{empty}, antlr4::ParseCancellationException);
}

TEST(Interrogators, KeepNoReferenceToTheTextTheyAreMadeFrom) {
  auto text = std::make_unique<vorn::WideString>(wide("MATCH (n) RETURN n.x AS `a b`"));
  CypherInterrogator interrogator(*text);
  text->assign(text->size(), '?');
  text.reset();
  const auto& columns = interrogator.getResultColumnNamesAndTypes();
  ASSERT_EQ(columns.size(), 1U);
  EXPECT_EQ(narrow(columns.front().first), "a b");
}

TEST(Interrogators, AreIndependentOfEachOtherAndOfFailuresBefore) {
  CypherInterrogator first(wide("RETURN 1 AS x"));
  EXPECT_THROW(CypherInterrogator(wide("RETURN ?")), antlr4::ParseCancellationException);
  {
    CypherInterrogator second(wide("RETURN 1 AS y, 2 AS z"));
    EXPECT_EQ(second.getResultColumnNamesAndTypes().size(), 2U);
  }
  EXPECT_EQ(first.getResultColumnNamesAndTypes().size(), 1U);
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

// Gets the messages of the exceptions that interrogators throw on several threads at the same time.
template <typename Interrogator>
std::vector<std::string> messagesOnManyThreads(const vorn::WideString& text) {
  std::vector<std::string> messages(8);
  std::vector<std::thread> threads;
  for (std::string& message : messages) {
    threads.emplace_back([&message, &text] {
      try {
        const Interrogator interrogator(text);
      } catch (const antlr4::ParseCancellationException& error) {
        message = error.what();
      }
    });
  }
  for (std::thread& thread : threads) {
    thread.join();
  }
  return messages;
}

TEST(Interrogators, ReportErrorsOnManyThreadsFromTheFirstCallOn) {
  EXPECT_EQ(messagesOnManyThreads<PropertyFilterExpressionInterrogator>(wide("(n RETURN n")),
            std::vector<std::string>(8, "line 1:3 no viable alternative at input '(n RETURN'"));
}

TEST(Interrogators, SayNothingOfThePlaceOfAnErrorInAQuery) {
  EXPECT_EQ(messagesOnManyThreads<CypherInterrogator>(wide("MATCH (n RETURN n")),
            std::vector<std::string>(8, "the text is no openCypher query"));
}

class OpenInterrogator : public InterrogatorBase {
 public:
  explicit OpenInterrogator(const vorn::WideString& text) : InterrogatorBase(text) {}

  const std::string& theText() const { return utf8Text; }
  const vorn::SyntaxTree& theTree() const { return tree; }
};

TEST(Interrogators, HoldTheTextAsUtf8) {
  EXPECT_EQ(OpenInterrogator(wide("'é名😀'")).theText(), "'é名😀'");
}

TEST(Interrogators, DivideTheirOwnTextIntoTokens) {
  const OpenInterrogator interrogator(wide("'é名😀' AND"));
  EXPECT_EQ(interrogator.theTree().text.data(), interrogator.theText().data());
  ASSERT_EQ(interrogator.theTree().tokenCount(), 3U);
  EXPECT_EQ(interrogator.theTree().textOf(0), "'é名😀'");
  EXPECT_EQ(interrogator.theTree().textOf(2), "AND");
}

}  // namespace
