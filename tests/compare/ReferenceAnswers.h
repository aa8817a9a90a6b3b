#pragma once

#include <ParserRuleContext.h>

#include "Answers.h"

namespace compare {

/// The three answers, computed in the plainest way from the runtime's own tree, its walker and
/// getText().
Columns referenceColumns(antlr4::ParserRuleContext& query);
Usages referenceUsages(antlr4::ParserRuleContext& expression);
Renamed referenceRenamed(antlr4::ParserRuleContext& expression, const Renames& renames);

}  // namespace compare
