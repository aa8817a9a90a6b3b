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

/// Texts for which the grammar is ambiguous over their whole length, so that time grows faster.
const std::vector<LargeText>& ambiguousTexts();
