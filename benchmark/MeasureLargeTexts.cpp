#include <sys/resource.h>

#include <cstddef>
#include <ctime>
#include <iomanip>
#include <iostream>
#include <sstream>

#include "Commands.h"
#include "corpus/LargeTexts.h"
#include "robustness/ChildProcess.h"
#include "subjects/Library.h"

namespace {

constexpr std::size_t mebibyte = 1 << 20;

std::size_t peakMebibytes() {
  rusage usage{};
  ::getrusage(RUSAGE_SELF, &usage);
  // NOLINTNEXTLINE(cppcoreguidelines-pro-type-union-access): the C library declares it so
  return static_cast<std::size_t>(usage.ru_maxrss) / 1024;
}

// Status, seconds and mebibytes of one call.
std::string measured(const Calls& library, const LargeText& text, std::size_t size) {
  return inChildProcess([&] {
    const Question question = text.ofSize(size);
    const std::size_t before = peakMebibytes();
    const std::clock_t start = std::clock();
    const std::string answered = answer(library, question).substr(0, 8);
    const double seconds = static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
    std::ostringstream line;
    line << std::fixed << std::setprecision(3) << seconds << " s\t" << peakMebibytes() - before
         << " MiB\t" << answered;
    return line.str();
  });
}

void print(const Calls& library, const LargeText& text, std::size_t from, std::size_t to,
           std::size_t factor) {
  std::cout << text.name << '\n';
  for (std::size_t size = from; size <= to; size *= factor) {
    std::cout << "  " << size << '\t' << measured(library, text, size) << std::endl;
  }
}

}  // namespace

void measureLargeTexts(const Arguments& arguments) {
  const Calls library = loadCalls(arguments.at(0));
  constexpr std::size_t factor = 4;
  for (std::size_t i = 0; i < linearTexts().size(); ++i) {
    // The first four kinds are a single token each, and so may be larger.
    const std::size_t largest = i < 4 ? 64 * mebibyte : mebibyte;
    print(library, linearTexts()[i], largest / 64, largest, factor);
  }
  for (const LargeText& text : nestedTexts()) {
    print(library, text, 1000, 64'000, factor);
  }
  for (const LargeText& text : wrongTexts()) {
    print(library, text, 125, 8000, factor);
  }
}
