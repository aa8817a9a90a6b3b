// Compares the parser under test with the bare pipeline on texts of many kinds.
//
//   compare [--texts N] [--seed S] [--long] [FILE_OR_FOLDER...]
//
// Exits with status 1 if anything differs, or if the texts leave out an alternative of the grammar.

#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "Coverage.h"
#include "Report.h"
#include "Sequences.h"
#include "Templates.h"
#include "Worker.h"

namespace {

using namespace compare;

constexpr std::size_t processes = 2;
// Fewer texts do not take every alternative.
constexpr std::uint64_t textsThatCover = 100'000;
// Alternatives that no text can take: without white space two keywords would be one name.
constexpr std::string_view impossible[] = {
    "oC_Union, decision 7, alternative 2",
    "oC_Union, decision 8, alternative 2",
    "oC_ProjectionBody, decision 72, alternative 2",
};
constexpr std::uint64_t textsOfALongRun = 20'000'000;

Options optionsFrom(const std::vector<std::string_view>& arguments) {
  Options options;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const auto number = [&] {
      if (++i == arguments.size()) {
        throw std::invalid_argument("a number is missing");
      }
      return std::stoull(std::string(arguments[i]));
    };
    if (arguments[i] == "--texts") {
      options.texts = number();
    } else if (arguments[i] == "--seed") {
      options.seed = number();
    } else if (arguments[i] == "--long") {
      options.everything = true;
      options.texts = std::max(options.texts, textsOfALongRun);
    } else {
      options.files.emplace_back(arguments[i]);
    }
  }
  return options;
}

// Zeroed memory that this process shares with the processes it starts.
Report* sharedReports() {
  void* const memory = mmap(nullptr, processes * sizeof(Report), PROT_READ | PROT_WRITE,
                            MAP_SHARED | MAP_ANONYMOUS, -1, 0);
  if (memory == MAP_FAILED) {
    throw std::runtime_error("no memory to share");
  }
  return static_cast<Report*>(memory);
}

// Starts processes, not threads: threads would wait for each other at the prediction cache.
void runAll(const Options& options, Report* reports) {
  std::vector<pid_t> children;
  for (std::size_t share = 0; share < processes; ++share) {
    const pid_t child = fork();
    if (child == 0) {
      Worker(options, share, processes, reports[share]).run();
      _exit(0);
    }
    children.push_back(child);
  }
  for (const pid_t child : children) {
    waitpid(child, nullptr, 0);
  }
}

Counts operator+(const Counts& one, const Counts& other) {
  return {one.texts + other.texts,
          one.accepted + other.accepted,
          one.refused + other.refused,
          one.equalMessages + other.equalMessages,
          one.refusedByBound + other.refusedByBound,
          one.microseconds + other.microseconds};
}

void printRow(const char* name, const Counts& counts) {
  const auto print = [](std::uint64_t number, int width) {
    std::printf(" %*llu", width, static_cast<unsigned long long>(number));
  };
  std::printf("%-24s", name);
  print(counts.texts, 10);
  print(counts.accepted, 10);
  print(counts.refused, 10);
  print(counts.equalMessages, 14);
  print(counts.refusedByBound, 9);
  print(counts.texts == 0 ? 0 : counts.microseconds / counts.texts, 10);
  std::printf("\n");
}

Counts printCounts(const Report* reports) {
  std::printf("%-24s %10s %10s %10s %14s %9s %10s\n", "texts", "compared", "accepted", "refused",
              "same message", "by bound", "µs a text");
  Counts all{};
  for (std::size_t source = 0; source < sourceCount; ++source) {
    Counts sum{};
    for (std::size_t share = 0; share < processes; ++share) {
      sum = sum + reports[share].counts[source];
    }
    printRow(sourceNames[source], sum);
    all = all + sum;
  }
  printRow("all", all);
  return all;
}

void printSequences(const Report* reports) {
  for (std::size_t i = 0; i < Sequences::alphabets().size(); ++i) {
    const Sequences::Alphabet& alphabet = Sequences::alphabets()[i];
    const auto [least, most] =
        std::minmax(reports[0].longestSequences[i], reports[processes - 1].longestSequences[i]);
    const bool ended = reports[0].allSequences[i] && reports[processes - 1].allSequences[i];
    std::printf("sequences, %s: %zu pieces, %s length %zu, begun %zu\n", alphabet.name,
                alphabet.pieces.size(), ended ? "all there are, up to" : "all up to",
                least == 0 || ended ? least : least - 1, most);
  }
}

unsigned long long chains(const Templates& templates, Templates::Kind kind, std::size_t length) {
  return templates.count(kind, length);
}

void printPairs(const Report* reports) {
  const Templates templates;
  std::size_t met = 0;
  for (std::size_t pair = 0; pair < templates.pairCount(); ++pair) {
    met += reports[0].met[pair] || reports[processes - 1].met[pair] ? 1 : 0;
  }
  std::printf(
      "constructs: %zu pairs, %zu of them in accepted texts; chains of two: %llu and %llu, "
      "of three: %llu and %llu\n",
      templates.pairCount(), met, chains(templates, Templates::Kind::Query, 2),
      chains(templates, Templates::Kind::Expression, 2),
      chains(templates, Templates::Kind::Query, 3),
      chains(templates, Templates::Kind::Expression, 3));
}

// Whether accepted texts have taken every alternative.
bool printCoverage(const Report* reports) {
  const Coverage coverage;
  std::size_t taken = 0;
  std::size_t missing = 0;
  std::uint64_t fewest = UINT64_MAX;
  std::string rarest;
  for (std::size_t i = 0; i < coverage.counts().size(); ++i) {
    std::uint64_t sum = 0;
    for (std::size_t share = 0; share < processes; ++share) {
      sum += reports[share].taken[i];
    }
    const std::string name = coverage.nameOf(i);
    if (sum == 0) {
      if (std::find(std::begin(impossible), std::end(impossible), name) == std::end(impossible)) {
        std::printf("never taken: %s\n", name.c_str());
        ++missing;
      }
      continue;
    }
    ++taken;
    if (sum < fewest) {
      fewest = sum;
      rarest = name;
    }
  }
  std::printf(
      "grammar: %zu of %zu alternatives taken by accepted texts, %zu of the others possible; "
      "the rarest %llu times: %s\n",
      taken, coverage.counts().size(), missing, static_cast<unsigned long long>(fewest),
      rarest.c_str());
  return missing == 0;
}

void printSlowest(const Report* reports) {
  const Report& slow = *std::max_element(reports, reports + processes, [](auto& one, auto& other) {
    return one.slowestMicroseconds < other.slowestMicroseconds;
  });
  std::printf("slowest: %.1f ms: %s\n", static_cast<double>(slow.slowestMicroseconds) / 1000,
              slow.slowest);
}

// Prints the differences and returns how many texts differ or crash their process.
std::uint64_t printDifferences(const Report* reports) {
  std::uint64_t differences = 0;
  for (std::size_t share = 0; share < processes; ++share) {
    const Report& report = reports[share];
    std::printf("%s", report.shown);
    differences += report.differences;
    if (!report.finished) {
      std::printf("a process ended at ----\n%s\n----\n", report.current);
      ++differences;
    }
  }
  return differences;
}

int compareAll(const Options& options) {
  const auto begin = std::chrono::steady_clock::now();
  Report* const reports = sharedReports();
  runAll(options, reports);
  const std::chrono::duration<double> took = std::chrono::steady_clock::now() - begin;
  const Counts all = printCounts(reports);
  printSequences(reports);
  printPairs(reports);
  const bool covered = printCoverage(reports) || options.texts < textsThatCover;
  printSlowest(reports);
  std::printf("%.0f s, %.0f texts a second\n", took.count(),
              static_cast<double>(all.texts) / took.count());
  const std::uint64_t differences = printDifferences(reports);
  std::printf("compare: %llu texts, %llu differences\n", static_cast<unsigned long long>(all.texts),
              static_cast<unsigned long long>(differences));
  return differences == 0 && covered ? EXIT_SUCCESS : EXIT_FAILURE;
}

}  // namespace

int main(int argc, char** argv) {
  try {
    return compareAll(optionsFrom({argv + 1, argv + argc}));
  } catch (const std::exception& exception) {
    std::cerr << "compare: " << exception.what() << '\n';
    return EXIT_FAILURE;
  }
}
