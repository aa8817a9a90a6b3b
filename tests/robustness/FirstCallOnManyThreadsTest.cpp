#include <gtest/gtest.h>

#include <atomic>
#include <future>
#include <string>
#include <vector>

#include "robustness/LoadedLibrary.h"
#include "robustness/RandomTexts.h"

namespace {

constexpr int threads = 8;

std::vector<Question> randomQuestions(unsigned seed, int count) {
  RandomTexts texts(seed);
  std::vector<Question> drawn;
  for (int i = 0; i < count; ++i) {
    drawn.push_back(randomQuestion(texts));
  }
  return drawn;
}

std::vector<std::string> answers(const Calls& calls, const std::vector<Question>& asked,
                                 std::size_t first = 0) {
  std::vector<std::string> all(asked.size());
  for (std::size_t i = 0; i < asked.size(); ++i) {
    const std::size_t next = (first + i) % asked.size();
    all[next] = answer(calls, asked[next]);
  }
  return all;
}

// The answers of threads that begin at the same moment, each with another question.
std::vector<std::vector<std::string>> answersOnManyThreads(const Calls& calls,
                                                           const std::vector<Question>& asked) {
  std::atomic<int> waiting{threads};
  std::vector<std::future<std::vector<std::string>>> running;
  for (std::size_t i = 0; i < threads; ++i) {
    running.push_back(std::async(std::launch::async, [&, i] {
      --waiting;
      while (waiting > 0) {
        std::this_thread::yield();
      }
      return answers(calls, asked, i * asked.size() / threads);
    }));
  }
  std::vector<std::vector<std::string>> all;
  all.reserve(threads);
  for (auto& thread : running) {
    all.push_back(thread.get());
  }
  return all;
}

std::vector<std::string> answersOfOneThread(const std::vector<Question>& asked) {
  const LoadedLibrary library;
  return answers(library.calls(), asked);
}

TEST(FirstCallOnManyThreads, AnswersAsOnOneThread) {
  const std::vector<std::string> expected = answersOfOneThread(questions());
  for (int round = 0; round < 20; ++round) {
    const LoadedLibrary library;
    for (const auto& actual : answersOnManyThreads(library.calls(), questions())) {
      ASSERT_EQ(actual, expected);
    }
  }
}

// Valid and wrong texts at the same time. The wrong filters share the static data of the runtime.
TEST(ManyThreads, AnswerAsOneThread) {
  const std::vector<Question> asked = randomQuestions(1, 450);
  const std::vector<std::string> expected = answersOfOneThread(asked);
  const LoadedLibrary library;
  for (const auto& actual : answersOnManyThreads(library.calls(), asked)) {
    ASSERT_EQ(actual, expected);
  }
}

}  // namespace
