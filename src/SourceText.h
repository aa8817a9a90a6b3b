#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace antlr4 {
class ParserRuleContext;
class Token;
}  // namespace antlr4

namespace vorn {

/// The text that is analysed, as UTF-8. White space and comments are tokens, so the tokens' texts
/// stand side by side in it, and that of a token or of a whole context is a piece of it. The
/// runtime's getText() encodes each token anew and copies the text at every level of nesting.
class SourceText {
 public:
  /// Refers to the given text, which is well-formed UTF-8.
  explicit SourceText(std::string_view utf8);

  /// What getText() of the token returns.
  [[nodiscard]] std::string_view of(const antlr4::Token& token) const;

  /// What getText() of the context returns, which holds at least one token.
  [[nodiscard]] std::string_view of(const antlr4::ParserRuleContext& context) const;

 private:
  [[nodiscard]] std::string_view piece(const antlr4::Token& first, const antlr4::Token& last) const;
  [[nodiscard]] std::size_t offset(std::size_t codePoint) const;

  std::string_view text;
  std::vector<std::size_t> offsets;  // of each code point and of the end; none if all is ASCII
};

}  // namespace vorn
