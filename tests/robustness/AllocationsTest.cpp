// Tests that a call with a valid text takes little from the heap and leaves nothing there.

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <vector>

#include "robustness/FailingNew.h"
#include "robustness/LoadedLibrary.h"

namespace {

using Kind = Question::Kind;

constexpr std::size_t fewAllocations = 8;

template <typename Action>
std::size_t allocationsOf(const Action& action) {
  FailingNew::failAt(0);
  action();
  return FailingNew::allocations();
}

// How many allocations a call makes, less those that a copy of its answer makes.
template <typename Call>
std::size_t allocationsBesideTheAnswer(const Call& call) {
  decltype(call()) answered;
  const std::size_t all = allocationsOf([&] { answered = call(); });
  return all - allocationsOf([&] { const auto copy = answered; });
}

std::vector<std::pair<vorn::WideString, vorn::CypherType>> columnsOf(const Calls& calls,
                                                                     const char16_t* query) {
  std::vector<std::pair<vorn::WideString, vorn::CypherType>> columns;
  EXPECT_EQ(calls.columns(query, columns), 0);
  return columns;
}

TEST(ACallWithAShortText, MakesFewAllocations) {
  const LoadedLibrary library;
  const Calls calls = library.calls();
  for (const char16_t* query : {u"RETURN 1", u"CREATE (n)", u"MATCH (n) RETURN n",
                                u"CALL a.b() YIELD c RETURN c", u"RETURN any(x IN y) AS z"}) {
    EXPECT_LE(allocationsBesideTheAnswer([&] { return columnsOf(calls, query); }), fewAllocations)
        << vorn::WideString(query).size();
  }
  for (const char16_t* filter : {u"n.a = 1", u"1 < 2", u"NOT n.a IS NULL"}) {
    EXPECT_LE(allocationsBesideTheAnswer([&] { return calls.usages(filter); }), fewAllocations)
        << vorn::WideString(filter).size();
    EXPECT_LE(allocationsBesideTheAnswer([&] { return calls.renaming(filter, {}); }),
              fewAllocations)
        << vorn::WideString(filter).size();
  }
}

TEST(ACallWithALongText, MakesHardlyMoreAllocations) {
  const LoadedLibrary library;
  const auto allocationsFor = [&](std::size_t times) {
    vorn::WideString filter = u"1";
    for (std::size_t i = 0; i < times; ++i) {
      filter += u" + [(a)-->(b) | a]";
    }
    return allocationsBesideTheAnswer([&] { return library.calls().renaming(filter, {}); });
  };
  EXPECT_LE(allocationsFor(1), 2 * fewAllocations);
  EXPECT_LE(allocationsFor(1000), 4 * fewAllocations);
}

bool isWrongFilter(const Question& question) {
  const std::string expected = answer(LoadedLibrary().calls(), question);
  return question.kind != Kind::columns && expected.rfind("failed", 0) == 0;
}

std::vector<Question> questionsWithoutWrongFilters() {
  std::vector<Question> all;
  for (const Question& question : questions()) {
    if (!isWrongFilter(question)) {
      all.push_back(question);
    }
  }
  return all;
}

TEST(ACallWithAValidText, LeavesNothingInTheProcess) {
  const std::vector<Question> asked = questionsWithoutWrongFilters();
  EXPECT_GE(asked.size(), 9U);
  const LoadedLibrary library;
  for (const Question& question : asked) {
    const std::ptrdiff_t before = FailingNew::live();
    answer(library.calls(), question);
    EXPECT_EQ(FailingNew::live(), before) << question;
  }
}

// The first time leaves the static data of the runtime, which notes the expected tokens at errors.
TEST(AWrongFilter, LeavesNothingMoreTheSecondTime) {
  const LoadedLibrary library;
  const auto liveAfter = [&](const char16_t* filter) {
    answer(library.calls(), {Kind::usages, filter});
    return FailingNew::live();
  };
  for (const char16_t* filter : {u"n.a = ", u"(a)-[b]-(c", u"[x IN y | ", u"CASE WHEN a", u"?"}) {
    const std::ptrdiff_t once = liveAfter(filter);
    EXPECT_EQ(liveAfter(filter), once) << vorn::WideString(filter).size();
  }
}

}  // namespace
