#pragma once

#include <rapidcheck.h>

#include <string>

#include "support/Filters.h"

/// A property filter together with the usages it has by construction.
struct GeneratedFilter {
  std::string text;  // with gaps, see support/Gaps.h
  Usages usages;
  /// The type of the first forbidden element; empty if there is none.
  std::string forbiddenType;
};

/// Draws filters without forbidden elements.
rc::Gen<GeneratedFilter> genFilter();

/// Draws filters with a forbidden element in them.
rc::Gen<GeneratedFilter> genForbiddenFilter();

void showValue(const GeneratedFilter& filter, std::ostream& out);
