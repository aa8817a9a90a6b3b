#include "antlr/AntlrPipeline.h"

#include <ANTLRInputStream.h>
#include <CommonTokenStream.h>

#include "CypherLexer.h"
#include "antlr/CallPredictor.h"
#include "antlr/RecogniserTables.h"
#include "antlr/TableLexerSimulator.h"
#include "antlr/ThrowingErrorListener.h"

namespace vorn {

namespace {

// The runtime installs a listener that prints to the console; nothing may reach it.
void makeErrorsFatal(antlr4::Recognizer& recognizer) {
  recognizer.removeErrorListeners();
  recognizer.addErrorListener(&ThrowingErrorListener::instance());
}

}  // namespace

AntlrPipeline::AntlrPipeline(std::string_view utf8)
    : input_(std::make_unique<antlr4::ANTLRInputStream>(utf8)) {
  buildRecogniserTables();
  lexer_ = std::make_unique<CypherLexer>(input_.get());
  makeErrorsFatal(*lexer_);
  lexer_->setInterpreter(new TableLexerSimulator(*lexer_));
  tokens_ = std::make_unique<antlr4::CommonTokenStream>(lexer_.get());
  parser_ = std::make_unique<CypherParser>(tokens_.get());
  makeErrorsFatal(*parser_);
  parser_->setInterpreter(new CallPredictor(*parser_));
}

AntlrPipeline::~AntlrPipeline() = default;

}  // namespace vorn
