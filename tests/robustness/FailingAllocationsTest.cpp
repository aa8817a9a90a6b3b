// Tests that every allocation of a call may fail: the call reports it in its own way, and the next
// call is answered as always.

#include <gtest/gtest.h>

#include <cstdlib>
#include <memory>
#include <new>
#include <stdexcept>
#include <string>
#include <vector>

#include "robustness/ChildProcess.h"
#include "robustness/FailingNew.h"
#include "robustness/LoadedLibrary.h"
#include "robustness/Questions.h"
#include "robustness/RandomTexts.h"

namespace {

const std::string outOfMemory = "failed: std::bad_alloc";
const std::string outOfMemoryForColumns = "status 1, from before the call 0";

// The first wrong filter of a process makes some 100,000 allocations. To let each of them fail
// takes hours, so that has a make target.
std::size_t step() { return std::getenv("VORN_EVERY_ALLOCATION") == nullptr ? 499 : 1; }

struct Attempt {
  std::string answer;
  std::size_t allocations;
};

Attempt ask(const Calls& calls, const Question& question, std::size_t failing) {
  Attempt attempt{"", 0};
  FailingNew::failAt(failing);
  try {
    attempt.answer = answer(calls, question);
  } catch (const std::bad_alloc&) {
    attempt.answer = outOfMemory;
  }
  attempt.allocations = FailingNew::allocations();
  FailingNew::failAt(0);
  return attempt;
}

// A failure may have no effect, where the allocation only saves later ones. The runtime may cut its
// message short.
bool isRight(const std::string& actual, const std::string& expected) {
  return actual == outOfMemory || actual == outOfMemoryForColumns ||
         (actual == expected.substr(0, actual.size()) && actual.size() > 3);
}

std::size_t allocationsOfFirstCall(const Question& question) {
  const LoadedLibrary library;
  return std::stoul(inChildProcess(
      [&] { return std::to_string(ask(library.calls(), question, 0).allocations); }));
}

std::string answerOfFirstCall(const Question& question) {
  const LoadedLibrary library;
  return inChildProcess([&] { return answer(library.calls(), question); });
}

// Describes what goes wrong if this allocation fails in the first call of a process.
std::string failureInFirstCall(const Question& question, std::size_t failing,
                               const std::string& expected) {
  const std::ptrdiff_t before = FailingNew::live();
  auto library = std::make_unique<LoadedLibrary>();
  const std::ptrdiff_t loaded = FailingNew::live() - before;
  return inChildProcess([&]() -> std::string {
    const std::ptrdiff_t start = FailingNew::live();
    if (!isRight(ask(library->calls(), question, failing).answer, expected)) {
      return "it ends otherwise";
    }
    if (answer(library->calls(), question) != expected) {
      return "the next answer is wrong";
    }
    library.reset();
    const std::ptrdiff_t lost = FailingNew::live() - start + loaded;
    return lost > 0 ? std::to_string(lost) + " objects are lost" : "";
  });
}

class FailingAllocations : public testing::TestWithParam<Question> {
 protected:
  // The process sets up some things once, for example at the first exception. They do not belong to
  // the library, so that happens before the tests.
  static void SetUpTestSuite() {
    const LoadedLibrary library;
    for (const Question& question : questions()) {
      answer(library.calls(), question);
    }
  }
};

TEST_P(FailingAllocations, InTheFirstCallOfAProcessLeaveTheNextOneRight) {
  const std::string expected = answerOfFirstCall(GetParam());
  const std::size_t all = allocationsOfFirstCall(GetParam());
  for (std::size_t failing = 1; failing <= all; failing += step()) {
    ASSERT_EQ(failureInFirstCall(GetParam(), failing, expected), "")
        << "allocation " << failing << " of " << all;
  }
}

TEST_P(FailingAllocations, InALaterCallLeaveTheNextOneRight) {
  const LoadedLibrary library;
  const std::string expected = answer(library.calls(), GetParam());
  const std::size_t all = ask(library.calls(), GetParam(), 0).allocations;
  for (std::size_t failing = 1; failing <= all; ++failing) {
    const std::ptrdiff_t before = FailingNew::live();
    const bool right = isRight(ask(library.calls(), GetParam(), failing).answer, expected);
    const std::ptrdiff_t lost = FailingNew::live() - before;
    ASSERT_TRUE(right) << "allocation " << failing;
    ASSERT_LE(lost, 0) << "allocation " << failing;
  }
  EXPECT_EQ(answer(library.calls(), GetParam()), expected);
}

INSTANTIATE_TEST_SUITE_P(Questions, FailingAllocations, testing::ValuesIn(questions()));

// The first wrong filter builds the static data of the runtime, and each failure interrupts that.
TEST(FailuresInARow, LeaveTheTablesSound) {
  constexpr std::size_t stride = 7;
  const LoadedLibrary library;
  std::vector<std::string> expected;
  for (const Question& question : questions()) {
    expected.push_back(answerOfFirstCall(question));
  }
  answer(library.calls(), {Question::Kind::columns, u"RETURN 1"});
  for (std::size_t i = 0; i < questions().size(); ++i) {
    const Question& question = questions()[i];
    std::size_t failing = 1;
    while (ask(library.calls(), question, failing).allocations >= failing) {
      failing += stride;
    }
    EXPECT_EQ(answer(library.calls(), question), expected[i]) << "question " << i;
  }
}

// This test is here since the program counts allocations: with each text an error may end a call at
// another place, which might leak.
TEST(Unloading, FreesWhatRandomTextsLeftBehind) {
  const auto askRandomQuestions = [] {
    const LoadedLibrary library;
    RandomTexts texts(1);
    for (int i = 0; i < 300; ++i) {
      const Question question = randomQuestion(texts);
      answer(library.calls(), question);
    }
  };
  askRandomQuestions();
  const std::ptrdiff_t before = FailingNew::live();
  askRandomQuestions();
  EXPECT_EQ(FailingNew::live(), before);
}

}  // namespace
