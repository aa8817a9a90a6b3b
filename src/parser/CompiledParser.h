#pragma once

#include "parser/SyntaxTree.h"

namespace vorn {

enum class Verdict { Accepted, Refused, TooDeep };

/// Parses the tree's tokens as a whole query and adds nodes to the tree. The nodes are complete
/// only if the query is accepted.
Verdict parseQuery(SyntaxTree& tree);

/// The same for one expression, which must be the whole text apart from white space at its end. No
/// decision takes that white space for a part of the expression, since only the end of the text
/// follows.
Verdict parseExpression(SyntaxTree& tree);

}  // namespace vorn
