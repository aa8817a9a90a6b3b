#pragma once

#include <cstddef>

namespace antlr4 {
class TokenStream;
}  // namespace antlr4

namespace vorn {

/// The alternative that prediction without the full context takes at this decision, if the next
/// tokens tell and no conflict arises; else 0. Looks at a token only if those before it leave more
/// than one alternative.
std::size_t lookaheadAlternative(std::size_t decision, antlr4::TokenStream& tokens);

}  // namespace vorn
