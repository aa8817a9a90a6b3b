#pragma once

#include <atn/ParserATNSimulator.h>
#include <atn/PredictionContextCache.h>
#include <dfa/DFA.h>

#include <cstddef>
#include <deque>
#include <memory>
#include <unordered_map>
#include <utility>
#include <vector>

namespace vorn {

/// Predicts as the runtime does, with a prediction cache that belongs to the call. The compiled
/// lookahead answers what it can. The rest is simulated, which throws std::length_error if it takes
/// too long.
class CallPredictor final : public antlr4::atn::ParserATNSimulator {
 public:
  /// `maxConfigurations` bounds all predictions together.
  CallPredictor(antlr4::Parser& itsParser, std::size_t maxConfigurations);

  CallPredictor(const CallPredictor&) = delete;
  CallPredictor& operator=(const CallPredictor&) = delete;
  CallPredictor(CallPredictor&&) = delete;
  CallPredictor& operator=(CallPredictor&&) = delete;
  ~CallPredictor() override;

  std::size_t adaptivePredict(antlr4::TokenStream* input, std::size_t decision,
                              antlr4::ParserRuleContext* outerContext) override;

 protected:
  antlr4::atn::ATNConfigSet* removeAllConfigsNotInRuleStopState(
      antlr4::atn::ATNConfigSet* configurations, bool lookToEndOfRule) override;

 private:
  using Configurations = std::unique_ptr<antlr4::atn::ATNConfigSet>;
  using Context = std::shared_ptr<const antlr4::atn::PredictionContext>;

  // Where some tokens lead without the full context.
  struct State {
    Configurations configurations;                      // null where no alternative goes on
    std::size_t alternative = 0;                        // the only one that is left, or 0
    bool isConflict = false;                            // the full context must decide
    std::unordered_map<std::size_t, State*> next = {};  // by token type; states_ owns them
  };

  State& startOf(std::size_t decision);
  State& next(State& state, std::size_t symbol);
  std::size_t simulate(antlr4::TokenStream& input, std::size_t decision,
                       antlr4::ParserRuleContext* outerContext);
  std::size_t simulateWithContext(antlr4::TokenStream& input, std::size_t decision,
                                  antlr4::ParserRuleContext* outerContext);
  std::size_t finishedAlternative(antlr4::atn::ATNConfigSet& configurations,
                                  antlr4::TokenStream& input, std::size_t start,
                                  antlr4::ParserRuleContext* outerContext);
  Configurations startSet(std::size_t decision, const Context& context, bool isFull);
  Configurations reachSet(antlr4::atn::ATNConfigSet& from, std::size_t symbol, bool isFull);
  Context contextOf(const antlr4::RuleContext* innermost);
  void spend(std::size_t work);

  // The base class refers to these two, which stay empty.
  std::vector<antlr4::dfa::DFA> noStates_;
  antlr4::atn::PredictionContextCache noContexts_;

  std::deque<State> states_;                        // a deque, so that no state moves
  std::unordered_map<std::size_t, State*> starts_;  // by decision; states_ owns them
  // The rules that were open at the last prediction with the full context, outermost first.
  std::vector<std::pair<const antlr4::RuleContext*, Context>> openRules_;
  std::size_t workLeft_;  // in steps along known states
};

}  // namespace vorn
