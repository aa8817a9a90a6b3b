#pragma once

#include <atn/LexerATNSimulator.h>
#include <atn/ParserATNSimulator.h>

#include <memory>

#include "DfaIndex.h"
#include "HeldContexts.h"
#include "PredictionTables.h"

namespace vorn {

/// Predicts as the runtime does, in tables that it keeps alive, and leaves them sound if an
/// exception, such as a failed allocation, ends the prediction. The runtime would leave a state in
/// them that it frees, and lose others. What was predicted before needs no lock, and the open rules
/// no recursion.
class FailSafeParserSimulator final : public antlr4::atn::ParserATNSimulator {
 public:
  FailSafeParserSimulator(antlr4::Parser& ofParser, std::shared_ptr<PredictionTables> tables);

  size_t adaptivePredict(antlr4::TokenStream* input, size_t decision,
                         antlr4::ParserRuleContext* outerContext) override;

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
  size_t knownAlternative(antlr4::TokenStream* input, size_t decision) const;
  size_t finishedAlternative(antlr4::atn::ATNConfigSet* configs, antlr4::TokenStream* input,
                             size_t startIndex, antlr4::ParserRuleContext* outerContext);

  std::unique_ptr<antlr4::atn::ATNConfigSet> fullContextStart(const antlr4::dfa::DFA& dfa,
                                                              const antlr4::RuleContext* innermost);
  HeldContexts::Context contextOf(const antlr4::RuleContext* innermost);

  std::shared_ptr<PredictionTables> tables;
  HeldContexts openRules;  // of the last prediction with the full context
};

/// The same for the lexer. What was matched before needs no lock.
class FailSafeLexerSimulator final : public antlr4::atn::LexerATNSimulator {
 public:
  /// The index must belong to the automata of the other simulator.
  FailSafeLexerSimulator(antlr4::Lexer& ofLexer, const LexerATNSimulator& other,
                         DfaIndex& itsIndex);

  size_t match(antlr4::CharStream* input, size_t mode) override;

 protected:
  size_t execATN(antlr4::CharStream* input, antlr4::dfa::DFAState* start) override;
  antlr4::dfa::DFAState* computeTargetState(antlr4::CharStream* input,
                                            antlr4::dfa::DFAState* previous,
                                            size_t symbol) override;
  using LexerATNSimulator::addDFAState;
  antlr4::dfa::DFAState* addDFAState(antlr4::atn::ATNConfigSet* configs,
                                     bool suppressEdge) override;

 private:
  size_t matchFrom(DfaIndex::State& start, antlr4::CharStream* input);

  DfaIndex& index;
};

}  // namespace vorn
