#pragma once

#include <atn/ATN.h>
#include <atn/PredictionContextCache.h>
#include <dfa/DFA.h>

#include <cstddef>
#include <memory>
#include <vector>

namespace compare {

/// A prediction cache for all texts of a process. Unlike the recognisers' own cache, which only
/// grows, it can be replaced by an empty one.
struct ReferenceTables {
  explicit ReferenceTables(const antlr4::atn::ATN& atn);

  /// The current cache. To be called once for each text, since a large cache is replaced then.
  /// Earlier callers keep the cache that they have.
  static std::shared_ptr<ReferenceTables> current(const antlr4::atn::ATN& atn);

  [[nodiscard]] std::size_t size() const;

  std::vector<antlr4::dfa::DFA> decisions;
  antlr4::atn::PredictionContextCache contexts;
};

}  // namespace compare
