#pragma once

#include "parser/SyntaxTree.h"

namespace vorn {

enum class Verdict { Accepted, Refused, TooDeep };

/// Parses the tree's tokens as a whole query and adds its nodes. They are complete only if the
/// query is accepted.
Verdict parseQuery(SyntaxTree& tree);

/// The same for one expression from the first to the last token.
Verdict parseExpression(SyntaxTree& tree);

}  // namespace vorn
