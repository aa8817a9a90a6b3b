#include "InterrogatorBase.h"

#include <ANTLRInputStream.h>
#include <CommonTokenStream.h>
#include <atn/LexerATNSimulator.h>
#include <tree/ParseTreeWalker.h>

#include <string_view>

#include "CypherListener.h"
#include "FailSafeSimulators.h"
#include "GuardedRecognisers.h"
#include "PredictionTables.h"
#include "RecogniserTables.h"
#include "ThrowingErrorListener.h"
#include "platform/StringUtf8ImplDetail.h"

namespace vorn {

namespace {

// The runtime installs a listener that prints to the console; nothing may reach it.
void makeErrorsFatal(antlr4::Recognizer& recognizer) {
  recognizer.removeErrorListeners();
  recognizer.addErrorListener(&ThrowingErrorListener::instance());
}

}  // namespace

// NOLINTNEXTLINE(cppcoreguidelines-pro-type-member-init): the first memory is raw.
InterrogatorBase::InterrogatorBase(const WideString& text)
    : utf8Text(StringUtf8ImplDetail::StringWideCharToUtf8Impl(text)),
      inputStream(std::make_unique<antlr4::ANTLRInputStream>(std::string_view(utf8Text))) {
  buildRecogniserTables();
  lexer = std::make_unique<GuardedLexer>(inputStream.get(), guard, treeMemory);
  makeErrorsFatal(*lexer);
  lexer->setInterpreter(new FailSafeLexerSimulator(
      *lexer, *lexer->getInterpreter<antlr4::atn::LexerATNSimulator>(), lexerIndex()));
  tokenStream = std::make_unique<antlr4::CommonTokenStream>(lexer.get());
  parser = std::make_unique<GuardedParser>(tokenStream.get(), guard, treeMemory);
  makeErrorsFatal(*parser);
  parser->setInterpreter(
      new FailSafeParserSimulator(*parser, PredictionTables::current(parser->getATN())));
}

InterrogatorBase::~InterrogatorBase() = default;

void InterrogatorBase::walk(CypherListener& listener, antlr4::ParserRuleContext& tree,
                            std::initializer_list<std::size_t> rules) const {
  CypherParser::Rules heard;
  for (const std::size_t rule : rules) {
    heard.set(rule);
  }
  parser->_tracker.tellOnlyOf(heard);
  antlr4::tree::ParseTreeWalker::DEFAULT.walk(&listener, &tree);
}

}  // namespace vorn
