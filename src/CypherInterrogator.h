#pragma once

#include <utility>
#include <vector>

#include "InterrogatorBase.h"

namespace vorn {

/// A whole query: parsed by the constructor, asked for its result columns.
class CypherInterrogator : private InterrogatorBase {
 public:
  /// Throws antlr4::ParseCancellationException, which says nothing of the place, if `query` is no
  /// openCypher query, and std::length_error if it nests too deeply for the stack.
  explicit CypherInterrogator(const WideString& query);

  /// The columns of the query, computed by the first call and kept.
  std::vector<std::pair<WideString, CypherType>>& getResultColumnNamesAndTypes();

 private:
  std::vector<std::pair<WideString, CypherType>> resultColumns;
};

}  // namespace vorn
