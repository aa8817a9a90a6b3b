#pragma once

#include <ANTLRInputStream.h>
#include <BaseErrorListener.h>
#include <Exceptions.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "CypherLexer.h"
#include "parser/CompiledText.h"

/// The tokens of a text up to the first character that no token begins with.
struct TokenList {
  std::vector<std::size_t> types;
  std::vector<std::string> texts;
  bool isWhole = true;

  friend bool operator==(const TokenList& left, const TokenList& right) {
    return left.types == right.types && left.texts == right.texts && left.isWhole == right.isWhole;
  }
};

inline std::ostream& operator<<(std::ostream& out, const TokenList& tokens) {
  for (std::size_t i = 0; i < tokens.types.size(); ++i) {
    out << tokens.types[i] << " (" << tokens.texts[i] << ") ";
  }
  return out << (tokens.isWhole ? "to the end" : "and no more");
}

/// The lexer of the plain runtime. One object divides many texts, one after the other.
class BareLexer {
 public:
  BareLexer() {
    lexer_.removeErrorListeners();
    lexer_.addErrorListener(&errorsEnd_);
  }

  TokenList tokens(std::string_view utf8) {
    input_.load(std::string(utf8), false);
    lexer_.setInputStream(&input_);
    TokenList all;
    try {
      while (true) {
        const std::unique_ptr<antlr4::Token> token = lexer_.nextToken();
        if (token->getType() == antlr4::Token::EOF) {
          return all;
        }
        all.types.push_back(token->getType());
        all.texts.push_back(token->getText());
      }
    } catch (const antlr4::ParseCancellationException&) {
      all.isWhole = false;
      return all;
    }
  }

  vorn::CypherLexer& lexer() { return lexer_; }

 private:
  struct ErrorsEnd : antlr4::BaseErrorListener {
    [[noreturn]] void syntaxError(antlr4::Recognizer* /*recognizer*/, antlr4::Token* /*symbol*/,
                                  std::size_t /*line*/, std::size_t /*position*/,
                                  const std::string& message,
                                  std::exception_ptr /*exception*/) override {
      throw antlr4::ParseCancellationException(message);
    }
  };

  ErrorsEnd errorsEnd_;
  antlr4::ANTLRInputStream input_;
  vorn::CypherLexer lexer_{&input_};
};

inline TokenList compiledTokens(std::string_view utf8) {
  const CompiledText text{std::string(utf8)};
  return {text.types(), text.tokenTexts(), text.tree().isWhole};
}

/// Expects that both lexers find the same tokens in a text.
inline void expectTokensOfTheBareLexer(BareLexer& bare, std::string_view utf8) {
  EXPECT_EQ(compiledTokens(utf8), bare.tokens(utf8)) << utf8;
}
