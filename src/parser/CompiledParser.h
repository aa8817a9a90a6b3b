#pragma once

#include "parser/SyntaxTree.h"

namespace vorn {

enum class Verdict { Accepted, Refused, TooDeep };

/// Parses the tree's tokens as a whole query and adds its nodes. They are complete only if the
/// query is accepted.
Verdict parseQuery(SyntaxTree& tree);

/// The same for one expression from the first to the last token. White space may stand behind it:
/// each decision that reads so far finds the end of the text there, and can only leave the
/// expression.
Verdict parseExpression(SyntaxTree& tree);

}  // namespace vorn
