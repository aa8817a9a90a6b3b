#pragma once

#include <unordered_map>

#include "vorn/vorn.h"

/// What holds for the three functions whatever text they are given. A property that does not hold
/// is printed, and ends the process.

using Renames = std::unordered_map<vorn::WideString, vorn::WideString>;

/// Ends the process, after saying what does not hold, unless `holds`.
void require(bool holds, const char* property);

/// GetOutputNamesAndTypes: the status, the host's vector, names from the text, possible kinds.
void checkColumns(const vorn::WideString& query);

/// Usages against the text, and against what renaming makes of it.
void checkUsages(const vorn::WideString& expression);

/// A renaming against the usages before and after it.
void checkRenaming(const vorn::WideString& expression, const Renames& renames);

/// The function takes the whole text.
void checkIsQuery(const vorn::WideString& query);
void checkIsExpression(const vorn::WideString& expression);
