#pragma once

#include <unordered_map>

#include "vorn/vorn.h"

/// Properties of the three functions that hold for every text. A property that does not hold is
/// printed and ends the process.

using Renames = std::unordered_map<vorn::WideString, vorn::WideString>;

/// Prints the property and ends the process unless `holds`.
void require(bool holds, const char* property);

/// Checks GetOutputNamesAndTypes: the status, the host's vector, names from the text, possible
/// types.
void checkColumns(const vorn::WideString& query);

/// Checks the usages against the text and against its renamings.
void checkUsages(const vorn::WideString& expression);

/// Checks a renaming against the usages before and after it.
void checkRenaming(const vorn::WideString& expression, const Renames& renames);

/// Requires that the text is accepted as a query.
void checkIsQuery(const vorn::WideString& query);
void checkIsExpression(const vorn::WideString& expression);
