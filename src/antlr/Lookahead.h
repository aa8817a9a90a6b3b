#pragma once

#include <cstddef>

namespace antlr4 {
class TokenStream;
}  // namespace antlr4

namespace vorn {

/// The alternative that prediction without the full context takes at this decision, or 0 if the
/// next tokens do not tell or alternatives conflict. Looks at a token only if the tokens before it
/// leave several alternatives.
std::size_t lookaheadAlternative(std::size_t decision, antlr4::TokenStream& tokens);

}  // namespace vorn
