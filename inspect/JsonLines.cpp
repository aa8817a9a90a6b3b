#include "JsonLines.h"

#include <cstddef>
#include <iostream>
#include <string>

#include "InputOutput.h"
#include "System.h"

namespace inspect {

namespace {

/// A counter that is rewritten in place while somebody watches.
class Progress {
 public:
  Progress() = default;
  Progress(const Progress&) = delete;
  Progress(Progress&&) = delete;
  Progress& operator=(const Progress&) = delete;
  Progress& operator=(Progress&&) = delete;
  ~Progress() {
    if (shown) {
      std::cerr << "\r                    \r";
    }
  }

  void lineAnswered() {
    constexpr std::size_t step = 100;
    ++lines;
    if (watched && lines % step == 0) {
      std::cerr << '\r' << lines << " lines";
      shown = true;
    }
  }

 private:
  // Answers that appear there too show the progress themselves, and would mix with a counter.
  bool watched = errorsAreWatched() && !outputIsWatched();
  bool shown = false;
  std::size_t lines = 0;
};

}  // namespace

void answerJsonLines(const Command& command) {
  Progress progress;
  for (std::string line; std::getline(std::cin, line);) {
    writeOut(toLine(answerToLine(line, command)));
    progress.lineAnswered();
  }
  if (std::cin.bad()) {
    throw UsageError("standard input cannot be read to its end; give one that can.");
  }
}

}  // namespace inspect
