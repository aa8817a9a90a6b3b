#pragma once

#include <ANTLRInputStream.h>
#include <CommonTokenStream.h>

#include <string>
#include <string_view>
#include <vector>

#include "CypherLexer.h"
#include "CypherParser.h"
#include "antlr/ThrowingErrorListener.h"

/// The recognisers over one UTF-8 text with the library's error listener, open to a test.
struct Pipeline {
  explicit Pipeline(std::string_view utf8)
      : input(utf8), lexer(&input), tokens(&lexer), parser(&tokens) {
    lexer.removeErrorListeners();
    lexer.addErrorListener(&ThrowingErrorListener::instance());
    parser.removeErrorListeners();
    parser.addErrorListener(&ThrowingErrorListener::instance());
  }

  /// The token types of the whole text, without the end of input.
  std::vector<std::size_t> types() {
    tokens.fill();
    std::vector<std::size_t> all;
    for (const antlr4::Token* token : tokens.getTokens()) {
      all.push_back(token->getType());
    }
    all.pop_back();
    return all;
  }

  antlr4::ANTLRInputStream input;
  vorn::CypherLexer lexer;
  antlr4::CommonTokenStream tokens;
  vorn::CypherParser parser;
};
