#pragma once

#include <Exceptions.h>

#include <string_view>

#include "CypherInterrogator.h"
#include "support/Text.h"

/// Whether the library takes a text for a query.
inline bool accepts(std::string_view query) {
  try {
    vorn::CypherInterrogator interrogator(wide(query));
    return true;
  } catch (const antlr4::ParseCancellationException&) {
    return false;
  }
}

/// Whether the library takes a text for an expression where a query has one.
inline bool acceptsExpression(std::string_view expression) {
  return accepts("RETURN " + std::string(expression));
}
