#pragma once

#include <Exceptions.h>

#include <string_view>

#include "CypherInterrogator.h"
#include "support/Text.h"

/// Whether the library accepts a text as a query.
inline bool accepts(std::string_view query) {
  try {
    vorn::CypherInterrogator interrogator(wide(query));
    return true;
  } catch (const antlr4::ParseCancellationException&) {
    return false;
  }
}

/// Whether the library accepts a text as an expression inside a query.
inline bool acceptsExpression(std::string_view expression) {
  return accepts("RETURN " + std::string(expression));
}
