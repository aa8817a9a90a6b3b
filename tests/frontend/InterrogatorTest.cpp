#include <ANTLRInputStream.h>
#include <BailErrorStrategy.h>
#include <CommonTokenStream.h>
#include <DefaultErrorStrategy.h>
#include <ProxyErrorListener.h>
#include <atn/ParserATNSimulator.h>
#include <gtest/gtest.h>

#include <initializer_list>
#include <memory>
#include <thread>
#include <type_traits>

#include "CypherInterrogator.h"
#include "CypherLexer.h"
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

// What the conversion of the text throws, before any parsing, is no syntax error.
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

TEST(Interrogators, ReportErrorsOnManyThreadsFromTheFirstCallOn) {
  std::vector<std::string> messages(8);
  std::vector<std::thread> threads;
  for (std::string& message : messages) {
    threads.emplace_back([&message] {
      try {
        const CypherInterrogator interrogator(wide("MATCH (n RETURN n"));
      } catch (const antlr4::ParseCancellationException& error) {
        message = error.what();
      }
    });
  }
  for (std::thread& thread : threads) {
    thread.join();
  }
  EXPECT_EQ(messages, std::vector<std::string>(
                          8, "line 1:9 no viable alternative at input 'MATCH (n RETURN'"));
}

// Shows the parts of the pipeline that the base keeps for the interrogators.
class OpenInterrogator : public InterrogatorBase {
 public:
  explicit OpenInterrogator(const vorn::WideString& text) : InterrogatorBase(text) {}

  antlr4::Lexer& theLexer() { return *lexer; }
  vorn::CypherParser& theParser() { return *parser; }
  const std::string& theText() const { return utf8Text; }
};

TEST(Pipelines, ShareTheStaticDataOfTheRecognisers) {
  OpenInterrogator one(wide("RETURN 1"));
  OpenInterrogator other(wide("n.a"));
  EXPECT_NE(&one.theLexer(), &other.theLexer());
  EXPECT_EQ(&one.theLexer().getATN(), &other.theLexer().getATN());
  EXPECT_EQ(&one.theParser().getATN(), &other.theParser().getATN());
  EXPECT_EQ(one.theLexer().getSerializedATN().data(), other.theLexer().getSerializedATN().data());
}

TEST(Pipelines, HoldTheTextAsUtf8) {
  EXPECT_EQ(OpenInterrogator(wide("'é名😀'")).theText(), "'é名😀'");
}

// The runtime calls listeners in the order of their addresses. So one that prints could hide behind
// the one that throws, and shows itself when that one is taken away.
TEST(Pipelines, ReportToTheSharedListenerOnly) {
  OpenInterrogator interrogator(wide("?"));
  testing::internal::CaptureStdout();
  testing::internal::CaptureStderr();
  for (antlr4::Recognizer* recognizer : std::initializer_list<antlr4::Recognizer*>{
           &interrogator.theLexer(), &interrogator.theParser()}) {
    antlr4::ProxyErrorListener& listeners = recognizer->getErrorListenerDispatch();
    EXPECT_THROW(listeners.syntaxError(recognizer, nullptr, 1, 0, "", nullptr),
                 antlr4::ParseCancellationException);
    recognizer->removeErrorListener(&ThrowingErrorListener::instance());
    EXPECT_NO_THROW(listeners.syntaxError(recognizer, nullptr, 1, 0, "", nullptr));
  }
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST(Pipelines, ParseAsTheRuntimeDoesByDefault) {
  OpenInterrogator interrogator(wide("RETURN 1"));
  EXPECT_TRUE(interrogator.theParser().getBuildParseTree());
  EXPECT_EQ(interrogator.theParser()
                .getInterpreter<antlr4::atn::ParserATNSimulator>()
                ->getPredictionMode(),
            antlr4::atn::PredictionMode::LL);
  EXPECT_NE(
      dynamic_cast<antlr4::DefaultErrorStrategy*>(interrogator.theParser().getErrorHandler().get()),
      nullptr);
  EXPECT_EQ(
      dynamic_cast<antlr4::BailErrorStrategy*>(interrogator.theParser().getErrorHandler().get()),
      nullptr);
}

TEST(ThrowingErrorListener, IsOneForTheProcess) {
  EXPECT_EQ(&ThrowingErrorListener::instance(), &ThrowingErrorListener::instance());
  static_assert(std::is_base_of_v<antlr4::BaseErrorListener, ThrowingErrorListener>);
  static_assert(sizeof(ThrowingErrorListener) == sizeof(antlr4::BaseErrorListener));
}

}  // namespace
