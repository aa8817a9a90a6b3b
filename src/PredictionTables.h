#pragma once

#include <atn/PredictionContextCache.h>
#include <dfa/DFA.h>

#include <atomic>
#include <cstddef>
#include <memory>
#include <vector>

#include "DfaIndex.h"
#include "HeldContexts.h"

namespace antlr4::atn {
class ATN;
}  // namespace antlr4::atn

namespace vorn {

/// What the parser remembers of its predictions. All calls share one object, which grows with every
/// new shape of text. Once it is too big, the next call starts a new one, and the old one goes with
/// the last call that uses it. So the memory stays bounded, and nobody waits.
class PredictionTables {
 public:
  explicit PredictionTables(const antlr4::atn::ATN& atn);

  /// The tables for a call that begins.
  static std::shared_ptr<PredictionTables> current(const antlr4::atn::ATN& atn);

  /// Lets the tables go, for the sake of a host that unloads the library.
  static void release();

  PredictionTables(const PredictionTables&) = delete;
  PredictionTables& operator=(const PredictionTables&) = delete;
  PredictionTables(PredictionTables&&) = delete;
  PredictionTables& operator=(PredictionTables&&) = delete;
  ~PredictionTables();

 private:
  [[nodiscard]] bool isOutgrown() const;

  HeldContexts held;  // outlives what refers to the contexts

 public:
  std::vector<antlr4::dfa::DFA> decisions;
  DfaIndex index;  // of the decisions
  antlr4::atn::PredictionContextCache contexts;
  std::atomic<std::size_t> configurations{0};
};

}  // namespace vorn
