#include "JsonLines.h"

#include <array>
#include <iostream>
#include <optional>
#include <string_view>

#include "Failure.h"
#include "InputOutput.h"
#include "System.h"

namespace inspect {

namespace {

constexpr std::size_t longestRequest = std::size_t{256} << 20U;

// A counter that is rewritten in place on a terminal.
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
  // Answers on the same terminal show the progress themselves, and would mix with a counter.
  bool watched = errorsAreWatched() && !outputIsWatched();
  bool shown = false;
  std::size_t lines = 0;
};

struct Line {
  std::string text;
  bool tooLong = false;
};

void append(Line& line, std::string_view part) {
  line.tooLong = line.tooLong || part.size() > longestRequest - line.text.size();
  if (line.tooLong) {
    line.text = {};
  } else {
    line.text += part;
  }
}

// A line that is too long takes no more memory than one piece.
std::optional<Line> readLine(std::istream& in) {
  constexpr std::size_t pieceSize = 65536;
  std::array<char, pieceSize> piece{};
  std::optional<Line> line;
  while (in.good()) {
    in.getline(piece.data(), pieceSize);
    auto size = static_cast<std::size_t>(in.gcount());
    const bool complete = in.good();
    if (!line && (complete || size > 0)) {
      line.emplace();
    }
    if (line) {
      // The line feed is counted, but not stored.
      append(*line, {piece.data(), complete ? size - 1 : size});
    }
    if (complete) {
      break;
    }
    if (!in.eof() && !in.bad()) {
      in.clear();
    }
  }
  return line;
}

JsonAnswer answerTo(const Line& line, const Command& command) {
  return line.tooLong ? refusal({kinds::tooLarge, "The line has more than 256 MiB.", {}})
                      : answerToLine(line.text, command);
}

}  // namespace

std::size_t answerJsonLines(std::istream& in, const std::string& name, const Command& command) {
  std::size_t lines = 0;
  std::size_t refused = 0;
  {
    Progress progress;
    while (const std::optional<Line> line = readLine(in)) {
      const JsonAnswer answer = answerTo(*line, command);
      writeOut(answer.line);
      progress.lineAnswered();
      ++lines;
      refused += answer.analysed ? 0 : 1;
    }
  }
  if (in.bad()) {
    failToRead(name);
  }
  if (refused > 0) {
    std::cerr << "vorn-inspect: " << refused << " of " << lines << " requests were refused.\n";
  }
  return refused;
}

}  // namespace inspect
