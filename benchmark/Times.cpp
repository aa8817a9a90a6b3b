#include <benchmark/benchmark.h>

#include <algorithm>
#include <limits>
#include <map>
#include <string>
#include <vector>

#include "Commands.h"
#include "corpus/Corpus.h"
#include "subjects/BarePipeline.h"
#include "subjects/CallTime.h"
#include "subjects/Subject.h"

namespace {

using Subjects = std::vector<std::unique_ptr<Subject>>;

struct Call {
  const Text* text;
  Subject::Function function;
};

struct Group {
  std::vector<Call> calls;
  double tokens = 0;
};

using Groups = std::map<std::string, Group>;

Groups group(const std::vector<Text>& texts) {
  Groups groups;
  for (const Text& text : texts) {
    for (const Subject::Function function : functionsFor(text)) {
      Group& found = groups[text.group + ": " + nameOf(function)];
      found.calls.push_back({&text, function});
      found.tokens += static_cast<double>(countTokens(text));
    }
  }
  return groups;
}

// The seconds that one subject took. Other programs on a shared machine disturb the fastest call
// least.
struct Taken {
  explicit Taken(std::size_t texts) : fastest(texts, std::numeric_limits<double>::infinity()) {}

  double sum = 0;               // of all calls
  std::vector<double> fastest;  // call, by text
};

double total(const std::vector<double>& values) {
  double sum = 0;
  for (const double value : values) {
    sum += value;
  }
  return sum;
}

// Each subject goes first as often as the others.
void callOnce(const Subjects& subjects, const Group& group, std::size_t turn,
              std::vector<Taken>& taken) {
  for (std::size_t text = 0; text < group.calls.size(); ++text) {
    for (std::size_t i = 0; i < subjects.size(); ++i) {
      const std::size_t subject = (i + turn + text) % subjects.size();
      const double time =
          1e9 * secondsOf(*subjects[subject], group.calls[text].function, *group.calls[text].text);
      taken[subject].sum += time;
      taken[subject].fastest[text] = std::min(taken[subject].fastest[text], time);
    }
  }
}

double worstText(const Taken& one, const Taken& bare) {
  double worst = 0;
  for (std::size_t text = 0; text < one.fastest.size(); ++text) {
    worst = std::max(worst, one.fastest[text] / bare.fastest[text]);
  }
  return worst;
}

void measureGroup(benchmark::State& state, const Subjects& subjects, const Group& group) {
  std::vector<Taken> taken(subjects.size(), Taken(group.calls.size()));
  std::vector<Taken> warmUp = taken;
  callOnce(subjects, group, 0, warmUp);
  std::size_t turn = 0;
  for ([[maybe_unused]] auto iteration : state) {
    callOnce(subjects, group, turn++, taken);
  }
  const auto iterations = static_cast<double>(state.iterations());
  for (std::size_t i = 0; i < subjects.size(); ++i) {
    const std::string& name = subjects[i]->name;
    const double fastest = total(taken[i].fastest);
    state.counters[name + " us/text"] =
        taken[i].sum / iterations / static_cast<double>(group.calls.size()) / 1000;
    state.counters[name + " ns/token"] = taken[i].sum / iterations / group.tokens;
    state.counters[name + " ratio"] = taken[i].sum / taken.front().sum;
    state.counters[name + " fastest ratio"] = fastest / total(taken.front().fastest);
    state.counters[name + " worst text"] = worstText(taken[i], taken.front());
  }
}

void measureThreads(benchmark::State& state, const Subject& subject, const Groups& groups) {
  std::size_t calls = 0;
  for ([[maybe_unused]] auto iteration : state) {
    for (const auto& [name, group] : groups) {
      for (const Call& call : group.calls) {
        subject.call(call.function, *call.text);
      }
      calls += group.calls.size();
    }
  }
  state.SetItemsProcessed(static_cast<std::int64_t>(calls));
}

void registerAll(const Groups& groups, const Subjects& subjects) {
  for (const auto& entry : groups) {
    const Group& group = entry.second;
    benchmark::RegisterBenchmark(entry.first.c_str(), [&](benchmark::State& state) {
      measureGroup(state, subjects, group);
    });
  }
  for (const auto& subject : subjects) {
    for (const int threads : {1, 2, 4}) {
      benchmark::RegisterBenchmark(
          ("threads " + subject->name).c_str(),
          [&](benchmark::State& state) { measureThreads(state, *subject, groups); })
          ->Threads(threads)
          ->UseRealTime();
    }
  }
}

// Google Benchmark removes its own flags from the arguments, but needs a program's name before
// them.
Arguments withoutFlags(Arguments arguments) {
  static std::string program = "vorn-bench";
  std::vector<char*> argv = {program.data()};
  for (std::string& argument : arguments) {
    argv.push_back(argument.data());
  }
  auto argc = static_cast<int>(argv.size());
  benchmark::Initialize(&argc, argv.data());
  return {argv.begin() + 1, argv.begin() + argc};
}

}  // namespace

void measureTimes(const Arguments& arguments) {
  const Arguments others = withoutFlags(arguments);
  const std::vector<Text> texts = readTexts(others.at(0));
  Subjects subjects;
  for (std::size_t i = 1; i < others.size(); ++i) {
    subjects.push_back(makeSubject(others[i]));
  }
  const Groups groups = group(texts);
  registerAll(groups, subjects);
  benchmark::RunSpecifiedBenchmarks();
}
