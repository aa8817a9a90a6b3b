#pragma once

#include <cstddef>
#include <cstdint>

namespace compare {

/// Where texts come from.
enum class Source : std::uint8_t {
  Files,
  Drawn,
  Constructs,
  Sequences,
  Damaged,
  Tails,
  Characters,
  IllFormed,
};

constexpr std::size_t sourceCount = 8;
constexpr const char* sourceNames[sourceCount] = {
    "files",
    "drawn from the grammar",
    "constructs that meet",
    "sequences of pieces",
    "damaged",
    "with a tail",
    "edges of the lexer",
    "not well-formed",
};

struct Counts {
  std::uint64_t texts;
  std::uint64_t accepted;
  std::uint64_t refused;
  std::uint64_t equalMessages;
  std::uint64_t refusedByBound;
  std::uint64_t microseconds;
};

/// The results of one process for the process that started it. Both share this memory, so the
/// results remain even if the process crashes.
struct Report {
  static constexpr std::size_t mostAlternatives = 2048;
  static constexpr std::size_t mostPairs = 1U << 16U;
  static constexpr std::size_t mostText = 1U << 16U;

  Counts counts[sourceCount];
  std::uint32_t taken[mostAlternatives];  // by alternative: how many accepted texts have taken it
  bool met[mostPairs];                    // by pair of constructs: whether an accepted text has it
  std::size_t longestSequences[32];       // by alphabet
  bool allSequences[32];                  // by alphabet: whether there are no longer ones
  std::uint64_t differences;
  std::uint64_t slowestMicroseconds;
  bool finished;
  char slowest[mostText];
  char current[mostText];  // the text that is compared now
  char shown[mostText];    // the first differences
};

}  // namespace compare
