#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "support/Pipeline.h"

/// The token types of a text, without the end of input.
inline std::vector<std::size_t> tokenTypes(std::string_view utf8) { return Pipeline(utf8).types(); }

/// The token texts of a text, without the end of input.
inline std::vector<std::string> tokenTexts(std::string_view utf8) {
  Pipeline pipeline(utf8);
  pipeline.tokens.fill();
  std::vector<std::string> texts;
  for (const antlr4::Token* token : pipeline.tokens.getTokens()) {
    texts.push_back(token->getText());
  }
  texts.pop_back();
  return texts;
}

/// The type of the only token of a text, 0 if it has another number of them.
inline std::size_t onlyTokenType(std::string_view utf8) {
  const std::vector<std::size_t> types = tokenTypes(utf8);
  return types.size() == 1 ? types.front() : 0;
}

/// Whether the lexer finds an error in a text.
inline bool lexerRefuses(std::string_view utf8) {
  try {
    tokenTypes(utf8);
    return false;
  } catch (const antlr4::ParseCancellationException&) {
    return true;
  }
}
