#pragma once

#include <string_view>
#include <utility>
#include <vector>

#include "InterrogatorBase.h"

namespace antlr4 {
class ANTLRErrorListener;
}  // namespace antlr4

namespace vorn {

/// A whole query. The constructor parses it.
class CypherInterrogator : private InterrogatorBase {
 public:
  /// Throws antlr4::ParseCancellationException, without the place of the error, if `query` is no
  /// openCypher query, and std::length_error if it nests too deeply for the stack.
  explicit CypherInterrogator(const WideString& query);

  /// The same for a query in well-formed UTF-8, which must outlive the interrogator. A syntax error
  /// goes to `errors`, which must throw, if its place can be found.
  CypherInterrogator(std::string_view query, antlr4::ANTLRErrorListener& errors);

  /// The columns of the query, computed by the first call and kept.
  std::vector<std::pair<WideString, CypherType>>& getResultColumnNamesAndTypes();

 private:
  std::vector<std::pair<WideString, CypherType>> resultColumns;  // empty until asked for
};

}  // namespace vorn
