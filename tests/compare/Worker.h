#pragma once

#include <cstdint>
#include <deque>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "Comparison.h"
#include "Coverage.h"
#include "Drawing.h"
#include "Random.h"
#include "Report.h"
#include "Sequences.h"
#include "Templates.h"

namespace compare {

struct Options {
  std::uint64_t texts = 200'000;
  std::uint64_t seed = 1;
  bool everything = false;  // also all chains of three constructs and every character
  std::vector<std::filesystem::path> files;
};

/// Makes one share of the texts and compares them.
class Worker {
 public:
  Worker(const Options& itsOptions, std::size_t itsShare, std::size_t itsShares, Report& itsReport);

  /// Runs until the share is done or enough texts differ.
  void run();

 private:
  struct Accepted {
    std::string text;
    Entry entry;
    std::vector<Token> tokens;
  };

  Verdict check(Source source, const std::string& text, Entry entry);
  void count(Source source, const Verdict& verdict);
  void note(const std::string& what, std::string_view text, const std::string& sides);
  void remember(const std::string& text, Entry entry, Verdict& verdict);
  [[nodiscard]] bool isDone() const;

  void readFiles();
  void readFile(const std::filesystem::path& file);
  void compareNext();
  void compareDrawn();
  void compareConstructs();
  void compareChain(Templates::Kind kind, std::size_t depth, std::uint64_t number);
  void compareSequence();
  void compareDamaged();
  void compareTail();
  void compareCharacters();
  void compareIllFormed();

  const Options& options;
  std::size_t share;
  std::size_t shares;
  Report& report;
  std::uint64_t done = 0;
  std::uint64_t turn = 0;
  Random random;
  Drawing drawing;
  Templates templates;
  Coverage coverage;
  std::deque<Accepted> accepted;  // the latest accepted texts, to be damaged
  std::vector<Sequences> sequences;
  std::size_t nextAlphabet = 0;
  std::size_t chainKind = 0;  // the next chain
  std::size_t chainDepth = 1;
  std::uint64_t chainNumber;
  char32_t nextCharacter;
};

}  // namespace compare
