#include "BarePipeline.h"

#include <atn/ParserATNSimulator.h>

#include <memory>
#include <vector>

namespace compare {

namespace {

/// Prediction tables that can be begun anew: the recognisers' own only grow.
struct Tables {
  explicit Tables(const antlr4::atn::ATN& atn) {
    for (std::size_t i = 0; i < atn.getNumberOfDecisions(); ++i) {
      decisions.emplace_back(atn.getDecisionState(i), i);
    }
  }

  [[nodiscard]] std::size_t size() const {
    std::size_t states = 0;
    for (const antlr4::dfa::DFA& decision : decisions) {
      states += decision.states.size();
    }
    return states;
  }

  std::vector<antlr4::dfa::DFA> decisions;
  antlr4::atn::PredictionContextCache contexts;
};

Tables& currentTables(const antlr4::atn::ATN& atn) {
  constexpr std::size_t mostStates = 100'000;  // some hundreds of megabytes
  constexpr std::size_t textsBetweenLooks = 1024;
  static std::unique_ptr<Tables> tables;
  static std::size_t texts = 0;
  if (tables == nullptr || (++texts % textsBetweenLooks == 0 && tables->size() > mostStates)) {
    tables = std::make_unique<Tables>(atn);
  }
  return *tables;
}

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
    : input(utf8), lexer(&input), tokens(&lexer), parser(&tokens) {
  replaceListeners(lexer, errors);
  replaceListeners(parser, errors);
  Tables& tables = currentTables(parser.getATN());
  parser.setInterpreter(new antlr4::atn::ParserATNSimulator(&parser, parser.getATN(),
                                                            tables.decisions, tables.contexts));
}

void BarePipeline::run(Entry entry) {
  if (entry == Entry::Query) {
    tree = parser.oC_Cypher();
  } else {
    tree = parser.oC_Expression();
  }
}

}  // namespace compare
