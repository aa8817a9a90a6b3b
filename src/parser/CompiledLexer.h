#pragma once

#include "parser/SyntaxTree.h"

namespace vorn {

/// Divides the tree's text, which must be well-formed UTF-8, into tokens. Stops at the first
/// character that no token begins with. A byte order mark at the start belongs to no token. Throws
/// std::length_error for a text of more than 1 GiB.
void tokenise(SyntaxTree& tree);

}  // namespace vorn
