#pragma once

#include <string>

namespace antlr4 {
class ParserRuleContext;
}  // namespace antlr4

namespace vorn {

/// The text of a context that holds at least one token, as UTF-8: what its getText() returns. White
/// space and comments are tokens, so the tokens' texts stand side by side in the input, and one
/// copy from there takes time linear in the length. getText() copies anew at every level of
/// nesting.
std::string sourceText(const antlr4::ParserRuleContext& context);

}  // namespace vorn
