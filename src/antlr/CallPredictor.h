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

/// Predicts as the runtime does, by tables that belong to the call. The compiled lookahead answers
/// what it can; the rest is simulated, which throws std::length_error where it takes too long.
class CallPredictor final : public antlr4::atn::ParserATNSimulator {
 public:
  /// The bound holds for all predictions together.
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

  // What prediction without the full context knows behind the tokens that lead here.
  struct State {
    Configurations configurations;  // none where no alternative goes on
    std::size_t alternative = 0;    // once only one is left
    bool isConflict = false;
    std::unordered_map<std::size_t, State*> next = {};  // by token type
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

  // The base class refers to them, and nothing enters them.
  std::vector<antlr4::dfa::DFA> noStates_;
  antlr4::atn::PredictionContextCache noContexts_;

  std::deque<State> states_;
  std::unordered_map<std::size_t, State*> starts_;  // by decision
  std::vector<std::pair<const antlr4::RuleContext*, Context>> openRules_;
  std::size_t workLeft_;
};

}  // namespace vorn
