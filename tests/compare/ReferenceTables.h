#pragma once

#include <atn/ATN.h>
#include <atn/PredictionContextCache.h>
#include <dfa/DFA.h>

#include <cstddef>
#include <memory>
#include <vector>

namespace compare {

/// Prediction tables for all texts of a process that can be begun anew: the recognisers' own only
/// grow.
struct ReferenceTables {
  explicit ReferenceTables(const antlr4::atn::ATN& atn);

  /// To be asked for once a text. Whoever still uses the tables before keeps them.
  static std::shared_ptr<ReferenceTables> current(const antlr4::atn::ATN& atn);

  [[nodiscard]] std::size_t size() const;

  std::vector<antlr4::dfa::DFA> decisions;
  antlr4::atn::PredictionContextCache contexts;
};

}  // namespace compare
