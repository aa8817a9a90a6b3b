#pragma once

#include <rapidcheck.h>

#include <string>
#include <vector>

#include "support/Columns.h"

/// A query together with the columns it has by construction.
struct GeneratedQuery {
  /// Has gaps (see support/Gaps.h) and an aliasMark for each alias of the last projection.
  std::string text;
  Columns columns;
  /// The aliases of the last projection, as written, and the indices of the columns they name.
  std::vector<std::string> aliases;
  std::vector<std::size_t> aliasColumns;

  /// The text with these aliases in place of the marks.
  std::string textWith(const std::vector<std::string>& someAliases) const;
  std::string textWithOwnAliases() const { return textWith(aliases); }
};

/// Draws queries of MATCH, UNWIND and WITH clauses that end in RETURN, joined by UNION.
rc::Gen<GeneratedQuery> genQuery();

void showValue(const GeneratedQuery& query, std::ostream& out);
