#pragma once

#include "parser/SyntaxTree.h"

namespace vorn {

/// Divides the tree's text, which is well-formed UTF-8, into tokens, up to the first character that
/// no token begins with. A byte order mark at the very beginning belongs to no token.
/// Throws std::length_error for a text of more than 1 GiB.
void tokenise(SyntaxTree& tree);

}  // namespace vorn
