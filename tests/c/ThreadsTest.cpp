#include <gtest/gtest.h>

#include <atomic>
#include <future>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "Ask.h"

using namespace c_interface;

namespace {

constexpr std::size_t threads = 8;

// All begin at the same moment.
template <typename Work>
std::vector<std::string> onManyThreads(const Work& work) {
  std::atomic<std::size_t> waiting{threads};
  std::vector<std::future<std::string>> running;
  for (std::size_t i = 0; i != threads; ++i) {
    running.push_back(std::async(std::launch::async, [&, i] {
      --waiting;
      while (waiting > 0) {
        std::this_thread::yield();
      }
      return work(i);
    }));
  }
  std::vector<std::string> all;
  all.reserve(threads);
  for (auto& thread : running) {
    all.push_back(thread.get());
  }
  return all;
}

const std::vector<std::pair<Kind, std::string>>& questions() {
  static const std::vector<std::pair<Kind, std::string>> all = {
      {Kind::Columns, "MATCH p = (n)-[r]-(m) RETURN *, n.name AS `größe`"},
      {Kind::Columns, "MATCH (n) RETRUN n"},
      {Kind::Columns, "RETURN 'not closed"},
      {Kind::Usages, "n.address.city = 'x' AND m:Person"},
      {Kind::Usages, "n.a = AND"},
      {Kind::Usages, "any(x IN n.l WHERE x)"},
      {Kind::Renaming, "n.a = n.b"},
      {Kind::Renaming, "(n.a"},
  };
  return all;
}

std::string answersFrom(std::size_t first, Encoding encoding) {
  std::vector<std::string> lines(questions().size());
  for (std::size_t i = 0; i != lines.size(); ++i) {
    const std::size_t at = (first + i) % lines.size();
    const auto& [kind, text] = questions()[at];
    lines[at] = lineOf(ask(encoding, kind, text, {{"n", "m"}}));
  }
  std::string all;
  for (const std::string& line : lines) {
    all += line + "\n";
  }
  return all;
}

// The first test of this program, which each test runs in a process of its own.
TEST(CThreads, AnswerAsOneFromTheFirstCallOn) {
  std::vector<std::string> told;
  for (int round = 0; round != 20; ++round) {
    for (std::string& answers : onManyThreads([](std::size_t i) {
           return answersFrom(i, i % 2 == 0 ? Encoding::Utf8 : Encoding::Utf16);
         })) {
      told.push_back(std::move(answers));
    }
  }
  EXPECT_EQ(told, std::vector<std::string>(20 * threads, answersFrom(0, Encoding::Utf8)));
}

TEST(CThreads, ReadOneAnswerAtTheSameTime) {
  const std::string query = "MATCH (n)-[r]-() RETURN n AS first, r AS second";
  const Answer answer(vorn_columns_utf8(query.data(), query.size()));
  const std::vector<std::string> told = onManyThreads([&](std::size_t /*i*/) {
    std::string names;
    for (std::size_t i = 0; i != vorn_column_count(answer.get()); ++i) {
      names += vorn_column_name_utf8(answer.get(), i, nullptr);
    }
    return names;
  });
  EXPECT_EQ(told, std::vector<std::string>(threads, "firstsecond"));
}

TEST(CThreads, ReleaseWhatOthersWereGiven) {
  std::vector<Answer> answers(threads);
  onManyThreads([&](std::size_t i) {
    answers[i] = Answer(vorn_usages_utf8("n.a AND", 7));
    return std::string();
  });
  onManyThreads([&](std::size_t i) {
    answers[(i + 1) % threads].reset();
    return std::string();
  });
}

}  // namespace
