#pragma once

#include <cstddef>
#include <deque>
#include <string>
#include <vector>

namespace compare {

/// All sequences of the pieces around a construct, in order of length. A sequence is continued only
/// if it is accepted, or wrong only at its end.
class Sequences {
 public:
  struct Alphabet {
    const char* name;
    bool ofExpressions;  // false: of queries
    std::vector<std::string> pieces;
  };

  static const std::vector<Alphabet>& alphabets();

  /// One of `shares` parts of the sequences.
  Sequences(const Alphabet& itsAlphabet, std::size_t share, std::size_t shares);

  /// Sets `text` to the next sequence. Returns false if there is none.
  [[nodiscard]] bool next(std::string& text);

  /// Lets the last sequence be continued.
  void keep() { open.push_back({last, lastLength}); }

  [[nodiscard]] std::size_t length() const { return lastLength; }

 private:
  struct Prefix {
    std::string text;
    std::size_t length;
  };

  const Alphabet& alphabet;
  std::size_t share;
  std::size_t shares;
  std::deque<Prefix> open;
  std::size_t piece = 0;  // the next piece behind the first prefix
  std::size_t pairs = 0;  // sequences of two pieces so far
  std::string last;
  std::size_t lastLength = 0;
};

}  // namespace compare
