#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "robustness/Questions.h"

/// A kind of large text, made in every size.
struct LargeText {
  std::string_view name;
  /// Makes a question of about this many code units.
  Question (*ofSize)(std::size_t size);
};

/// Texts for which time and memory grow as their size does.
const std::vector<LargeText>& linearTexts();

/// Texts that nest more deeply the larger they are, so they fit the stack only up to some size.
/// Time and memory grow as their size does.
const std::vector<LargeText>& nestedTexts();

/// Wrong filters that are ambiguous over most of their length. Time grows faster than their size,
/// until they are refused for that.
const std::vector<LargeText>& wrongTexts();
