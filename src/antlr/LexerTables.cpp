#include "antlr/LexerTables.h"

#include <ANTLRInputStream.h>
#include <atn/LexerATNSimulator.h>
#include <atn/OrderedATNConfigSet.h>
#include <atn/PredictionContextCache.h>
#include <atn/RuleStopState.h>
#include <dfa/DFA.h>

#include <map>
#include <memory>
#include <utility>
#include <vector>

#include "CypherLexer.h"

namespace vorn {

namespace {

// Stands in for what is generated from the grammar.
class Automaton final : public antlr4::atn::LexerATNSimulator {
 public:
  Automaton() : LexerATNSimulator(CypherLexer(nullptr).getATN(), noTables_, noContexts_) {
    add(computeStartState(&input_, atn.modeToStartState[0]));
  }

  LexerTables::State next(LexerTables::State state, char32_t symbol) {
    const auto known = edges_.find({state, symbol});
    if (known != edges_.end()) {
      return known->second;
    }
    auto reach = std::make_unique<antlr4::atn::OrderedATNConfigSet>();
    getReachableConfigSet(&input_, states_[state].get(), reach.get(),
                          symbol == LexerTables::endOfText ? antlr4::Token::EOF : symbol);
    const LexerTables::State target = reach->isEmpty() ? LexerTables::dead : add(std::move(reach));
    edges_[{state, symbol}] = target;
    return target;
  }

  [[nodiscard]] std::size_t type(LexerTables::State state) const {
    for (const auto& configuration : states_[state]->configs) {
      if (antlr4::atn::RuleStopState::is(configuration->state)) {
        return atn.ruleToTokenType[configuration->state->ruleIndex];
      }
    }
    return 0;
  }

 private:
  LexerTables::State add(std::unique_ptr<antlr4::atn::ATNConfigSet> configurations) {
    for (std::size_t i = 0; i < states_.size(); ++i) {
      if (*states_[i] == *configurations) {
        return static_cast<LexerTables::State>(i);
      }
    }
    states_.push_back(std::move(configurations));
    return static_cast<LexerTables::State>(states_.size() - 1);
  }

  std::vector<antlr4::dfa::DFA> noTables_;
  antlr4::atn::PredictionContextCache noContexts_;
  antlr4::ANTLRInputStream input_;
  std::vector<std::unique_ptr<antlr4::atn::ATNConfigSet>> states_;
  std::map<std::pair<LexerTables::State, char32_t>, LexerTables::State> edges_;
};

Automaton& automaton() {
  static auto* const only = new Automaton;
  return *only;
}

}  // namespace

LexerTables::State LexerTables::nextState(State state, char32_t symbol) {
  return automaton().next(state, symbol);
}

std::size_t LexerTables::tokenType(State state) { return automaton().type(state); }

}  // namespace vorn
