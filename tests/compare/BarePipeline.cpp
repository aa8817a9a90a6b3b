#include "BarePipeline.h"

#include <atn/ParserATNSimulator.h>

namespace compare {

namespace {

void replaceListeners(antlr4::Recognizer& recognizer, FirstErrorEnds& listener) {
  recognizer.removeErrorListeners();
  recognizer.addErrorListener(&listener);
}

}  // namespace

void FirstErrorEnds::syntaxError(antlr4::Recognizer* /*recognizer*/, antlr4::Token* offending,
                                 std::size_t line, std::size_t column, const std::string& message,
                                 std::exception_ptr /*cause*/) {
  atEnd = offending != nullptr && offending->getType() == antlr4::Token::EOF;
  throw antlr4::ParseCancellationException("line " + std::to_string(line) + ":" +
                                           std::to_string(column) + " " + message);
}

BarePipeline::BarePipeline(std::string_view utf8)
    : input(utf8),
      lexer(&input),
      tokens(&lexer),
      parser(&tokens),
      tables(ReferenceTables::current(parser.getATN())) {
  replaceListeners(lexer, errors);
  replaceListeners(parser, errors);
  parser.setInterpreter(new antlr4::atn::ParserATNSimulator(&parser, parser.getATN(),
                                                            tables->decisions, tables->contexts));
}

void BarePipeline::run(Entry entry) {
  if (entry == Entry::Query) {
    tree = parser.oC_Cypher();
  } else {
    tree = parser.oC_Expression();
  }
}

}  // namespace compare
