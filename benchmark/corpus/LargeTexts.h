#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "robustness/Questions.h"

/// A kind of large text, made in every size.
struct LargeText {
  std::string_view name;
  /// A question of about this many code units.
  Question (*ofSize)(std::size_t size);
};

/// Texts that are answered in time and memory that grow as their size does.
const std::vector<LargeText>& linearTexts();

/// Texts that nest ever deeper, and so fit the stack only up to a size. Time and memory grow as for
/// the others.
const std::vector<LargeText>& nestedTexts();

/// Wrong filters, for which the grammar is ambiguous over most of their length: time grows faster,
/// up to where they are refused for it.
const std::vector<LargeText>& wrongTexts();
