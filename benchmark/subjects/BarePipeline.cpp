#include "BarePipeline.h"

#include <ANTLRInputStream.h>
#include <CommonTokenStream.h>
#include <tree/ParseTreeWalker.h>

#include "CypherBaseListener.h"
#include "CypherLexer.h"
#include "CypherParser.h"

void BarePipeline::call(Function /*function*/, const Text& text) const {
  antlr4::ANTLRInputStream input{std::string_view(text.utf8)};
  vorn::CypherLexer lexer(&input);
  lexer.removeErrorListeners();
  antlr4::CommonTokenStream tokens(&lexer);
  vorn::CypherParser parser(&tokens);
  parser.removeErrorListeners();
  antlr4::tree::ParseTree* tree = nullptr;
  if (text.entry == Text::Entry::Query) {
    tree = parser.oC_Cypher();
  } else {
    tree = parser.oC_Expression();
  }
  vorn::CypherBaseListener listener;
  antlr4::tree::ParseTreeWalker::DEFAULT.walk(&listener, tree);
}

std::size_t countTokens(const Text& text) {
  antlr4::ANTLRInputStream input{std::string_view(text.utf8)};
  vorn::CypherLexer lexer(&input);
  lexer.removeErrorListeners();
  return lexer.getAllTokens().size();
}
