#pragma once

#include <atn/LexerATNSimulator.h>
#include <atn/ParserATNSimulator.h>

#include <memory>

#include "PredictionTables.h"

namespace vorn {

/// Predicts as the runtime does, in tables that it keeps alive, and leaves them sound if an
/// exception, such as a failed allocation, ends the prediction. The runtime would leave a state in
/// them that it frees, and lose others.
class FailSafeParserSimulator : public antlr4::atn::ParserATNSimulator {
 public:
  FailSafeParserSimulator(antlr4::Parser& ofParser, std::shared_ptr<PredictionTables> tables);

 protected:
  antlr4::dfa::DFAState* addDFAState(antlr4::dfa::DFA& dfa, antlr4::dfa::DFAState* state) override;
  antlr4::dfa::DFAState* computeTargetState(antlr4::dfa::DFA& dfa, antlr4::dfa::DFAState* previous,
                                            size_t symbol) override;
  size_t execATN(antlr4::dfa::DFA& dfa, antlr4::dfa::DFAState* start, antlr4::TokenStream* input,
                 size_t startIndex, antlr4::ParserRuleContext* outerContext) override;
  size_t execATNWithFullContext(antlr4::dfa::DFA& dfa, antlr4::dfa::DFAState* state,
                                antlr4::atn::ATNConfigSet* start, antlr4::TokenStream* input,
                                size_t startIndex,
                                antlr4::ParserRuleContext* outerContext) override;

 private:
  size_t finishedAlternative(antlr4::atn::ATNConfigSet* configs, antlr4::TokenStream* input,
                             size_t startIndex, antlr4::ParserRuleContext* outerContext);

  std::shared_ptr<PredictionTables> tables;
};

/// The same for the lexer.
class FailSafeLexerSimulator : public antlr4::atn::LexerATNSimulator {
 public:
  FailSafeLexerSimulator(antlr4::Lexer& ofLexer, const LexerATNSimulator& other);

 protected:
  antlr4::dfa::DFAState* computeTargetState(antlr4::CharStream* input,
                                            antlr4::dfa::DFAState* previous,
                                            size_t symbol) override;
  using LexerATNSimulator::addDFAState;
  antlr4::dfa::DFAState* addDFAState(antlr4::atn::ATNConfigSet* configs,
                                     bool suppressEdge) override;
};

}  // namespace vorn
