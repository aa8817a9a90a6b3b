#pragma once

#include <utility>
#include <vector>

#include "CypherParser.h"
#include "InterrogatorBase.h"

namespace vorn {

/// A whole query: parsed by the constructor, asked for its result columns.
class CypherInterrogator : private InterrogatorBase {
 public:
  /// Throws antlr4::ParseCancellationException if `query` is no openCypher query.
  explicit CypherInterrogator(const WideString& query);

  /// The columns of the query, computed by the first call and kept.
  std::vector<std::pair<WideString, CypherType>>& getResultColumnNamesAndTypes();

 private:
  CypherParser::OC_CypherContext* parseTree;  // the parser's
  std::vector<std::pair<WideString, CypherType>> resultColumns;
};

}  // namespace vorn
