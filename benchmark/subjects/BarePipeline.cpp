#include "BarePipeline.h"

#include <ANTLRInputStream.h>
#include <BaseErrorListener.h>
#include <CommonTokenStream.h>
#include <Exceptions.h>
#include <tree/ParseTreeWalker.h>

#include "CypherBaseListener.h"
#include "CypherLexer.h"
#include "CypherParser.h"

namespace {

// Behind the first error the tree is a guess. So a host's own pipeline would end there, as the
// library does.
class FirstErrorEnds : public antlr4::BaseErrorListener {
 public:
  void syntaxError(antlr4::Recognizer* /*recognizer*/, antlr4::Token* /*offendingSymbol*/,
                   std::size_t /*line*/, std::size_t /*charPositionInLine*/,
                   const std::string& message, std::exception_ptr /*cause*/) override {
    throw antlr4::ParseCancellationException(message);
  }
};

void replaceListeners(antlr4::Recognizer& recognizer, FirstErrorEnds& listener) {
  recognizer.removeErrorListeners();
  recognizer.addErrorListener(&listener);
}

void parseAndWalk(const Text& text) {
  FirstErrorEnds errorListener;
  antlr4::ANTLRInputStream input{std::string_view(text.utf8)};
  vorn::CypherLexer lexer(&input);
  replaceListeners(lexer, errorListener);
  antlr4::CommonTokenStream tokens(&lexer);
  vorn::CypherParser parser(&tokens);
  replaceListeners(parser, errorListener);
  antlr4::tree::ParseTree* tree = nullptr;
  if (text.entry == Text::Entry::Query) {
    tree = parser.oC_Cypher();
  } else {
    tree = parser.oC_Expression();
  }
  vorn::CypherBaseListener listener;
  antlr4::tree::ParseTreeWalker::DEFAULT.walk(&listener, tree);
}

}  // namespace

void BarePipeline::call(Function /*function*/, const Text& text) const {
  try {
    parseAndWalk(text);
  } catch (const antlr4::ParseCancellationException&) {  // NOLINT(bugprone-empty-catch): measured
  }
}

std::size_t countTokens(const Text& text) {
  antlr4::ANTLRInputStream input{std::string_view(text.utf8)};
  vorn::CypherLexer lexer(&input);
  lexer.removeErrorListeners();
  return lexer.getAllTokens().size();
}
