// Prediction chooses an alternative of a decision by the tokens ahead. It follows all alternatives
// at once. A configuration is a state of the grammar's network, the alternative that leads there,
// and the context: the calls of rules on the way. Each token leads from a set of configurations to
// the next set, until only one alternative is left.
//
// The first try does without the full context: it does not know which rule has called the rule of
// the decision (simulate). Its sets are the prediction cache, which belongs to the call: a State
// remembers where each token leads, so a set is computed once. Where alternatives conflict, the
// second try has the full context (simulateWithContext). Its sets are not kept.
//
// Every step costs work, a new set far more than a known one. The bound on the work ends the calls
// that would take too long (spend).

#include "antlr/CallPredictor.h"

#include <NoViableAltException.h>
#include <Parser.h>
#include <ParserRuleContext.h>
#include <Token.h>
#include <TokenStream.h>
#include <atn/ATN.h>
#include <atn/ATNConfig.h>
#include <atn/ATNConfigSet.h>
#include <atn/DecisionState.h>
#include <atn/PredictionContext.h>
#include <atn/PredictionMode.h>
#include <atn/RuleStopState.h>
#include <atn/RuleTransition.h>
#include <atn/SingletonPredictionContext.h>
#include <support/CPPUtils.h>
#include <support/Casts.h>

#include <algorithm>
#include <stdexcept>

#include "antlr/Lookahead.h"

namespace vorn {

using antlr4::atn::ATNConfig;
using antlr4::atn::ATNConfigSet;
using antlr4::atn::PredictionContext;
using antlr4::atn::PredictionModeClass;

namespace {

// Work is counted in steps along known states, which take some 0.2 us each. To reach a
// configuration takes 2 to 3 us.
constexpr std::size_t workOfConfiguration = 16;

}  // namespace

CallPredictor::CallPredictor(antlr4::Parser& itsParser, std::size_t maxConfigurations)
    : ParserATNSimulator(&itsParser, itsParser.getATN(), noStates_, noContexts_),
      workLeft_(maxConfigurations * workOfConfiguration) {
  _dfa = nullptr;  // the base class leaves it uninitialised
}

// The last ones go first. A context releases its parents by recursion if nothing else refers to
// them, and in this order something still does.
CallPredictor::~CallPredictor() {
  while (!states_.empty()) {
    states_.pop_back();
  }
  while (!openRules_.empty()) {
    openRules_.pop_back();
  }
}

std::size_t CallPredictor::adaptivePredict(antlr4::TokenStream* input, std::size_t decision,
                                           antlr4::ParserRuleContext* outerContext) {
  const std::size_t known = lookaheadAlternative(decision, *input);
  if (known != 0) {
    return known;
  }
  const auto onExit = antlrcpp::finally([this, input, start = input->index()] {
    input->seek(start);
    mergeCache.clear();
  });
  return simulate(*input, decision, outerContext);
}

std::size_t CallPredictor::simulate(antlr4::TokenStream& input, std::size_t decision,
                                    antlr4::ParserRuleContext* outerContext) {
  const std::size_t start = input.index();
  State* state = &startOf(decision);
  while (true) {
    const std::size_t symbol = input.LA(1);
    State& target = next(*state, symbol);
    if (target.configurations == nullptr) {
      return finishedAlternative(*state->configurations, input, start, outerContext);
    }
    if (target.alternative != 0) {
      return target.alternative;
    }
    if (target.isConflict) {
      input.seek(start);
      return simulateWithContext(input, decision, outerContext);
    }
    state = &target;
    if (symbol != antlr4::Token::EOF) {
      input.consume();
    }
  }
}

std::size_t CallPredictor::simulateWithContext(antlr4::TokenStream& input, std::size_t decision,
                                               antlr4::ParserRuleContext* outerContext) {
  const std::size_t start = input.index();
  Configurations current = startSet(decision, contextOf(outerContext), true);
  while (true) {
    const std::size_t symbol = input.LA(1);
    Configurations reach = reachSet(*current, symbol, true);
    if (reach == nullptr) {
      return finishedAlternative(*current, input, start, outerContext);
    }
    current = std::move(reach);
    std::size_t alternative = getUniqueAlt(current.get());
    if (alternative == 0) {
      alternative = PredictionModeClass::resolvesToJustOneViableAlt(
          PredictionModeClass::getConflictingAltSubsets(current.get()));
    }
    if (alternative != 0) {
      return alternative;
    }
    if (symbol != antlr4::Token::EOF) {
      input.consume();
    }
  }
}

CallPredictor::State& CallPredictor::startOf(std::size_t decision) {
  State*& start = starts_[decision];
  if (start == nullptr) {
    start = &states_.emplace_back(State{startSet(decision, PredictionContext::EMPTY, false)});
  }
  return *start;
}

CallPredictor::State& CallPredictor::next(State& state, std::size_t symbol) {
  spend(1);
  State*& known = state.next[symbol];
  if (known != nullptr) {
    return *known;
  }
  State target{reachSet(*state.configurations, symbol, false)};
  if (ATNConfigSet* const reached = target.configurations.get(); reached != nullptr) {
    target.alternative = getUniqueAlt(reached);
    target.isConflict =
        target.alternative == 0 &&
        PredictionModeClass::hasSLLConflictTerminatingPrediction(getPredictionMode(), reached);
  }
  known = &states_.emplace_back(std::move(target));
  return *known;
}

// For a token that fits no alternative: returns the alternative that was complete before the token,
// or throws the error.
std::size_t CallPredictor::finishedAlternative(ATNConfigSet& configurations,
                                               antlr4::TokenStream& input, std::size_t start,
                                               antlr4::ParserRuleContext* outerContext) {
  const std::size_t alternative = getAltThatFinishedDecisionEntryRule(&configurations);
  if (alternative == 0) {
    // The error gets no configurations, since nothing reads them.
    // NOLINTNEXTLINE(cert-err60-cpp): the type is the runtime's
    throw noViableAlt(&input, outerContext, nullptr, start, false);
  }
  return alternative;
}

CallPredictor::Configurations CallPredictor::startSet(std::size_t decision, const Context& context,
                                                      bool isFull) {
  auto start = std::make_unique<ATNConfigSet>(isFull);
  std::size_t alternative = 0;
  for (const auto& transition : atn.getDecisionState(decision)->transitions) {
    ATNConfig::Set busy;
    closure(std::make_shared<ATNConfig>(transition->target, ++alternative, context), start.get(),
            busy, true, isFull, false);
  }
  spend(start->size() * workOfConfiguration);
  return start;
}

CallPredictor::Configurations CallPredictor::reachSet(ATNConfigSet& from, std::size_t symbol,
                                                      bool isFull) {
  Configurations reach = computeReachSet(&from, symbol, isFull);
  spend(reach == nullptr ? 0 : reach->size() * workOfConfiguration);
  return reach;
}

// As in the runtime, but the set has an owner while it is filled. `lookToEndOfRule` is never true:
// it stands for a closure that was left out, and before the end of the text none is.
ATNConfigSet* CallPredictor::removeAllConfigsNotInRuleStopState(ATNConfigSet* configurations,
                                                                bool /*lookToEndOfRule*/) {
  if (PredictionModeClass::allConfigsInRuleStopStates(configurations)) {
    return configurations;
  }
  auto ended = std::make_unique<ATNConfigSet>(configurations->fullCtx);
  for (const auto& configuration : configurations->configs) {
    if (antlr4::atn::RuleStopState::is(configuration->state)) {
      ended->add(configuration, &mergeCache);
    }
  }
  return ended.release();
}

// The contexts of rules that are still open are kept from one prediction to the next. The runtime
// would build them anew each time, and hash and release them by recursion over all open rules.
CallPredictor::Context CallPredictor::contextOf(const antlr4::RuleContext* innermost) {
  std::vector<const antlr4::RuleContext*> rules;
  for (const auto* rule = innermost; rule->parent != nullptr;
       rule = antlrcpp::downCast<const antlr4::RuleContext*>(rule->parent)) {
    rules.push_back(rule);
  }
  std::reverse(rules.begin(), rules.end());
  const auto changed =
      std::mismatch(rules.begin(), rules.end(), openRules_.begin(), openRules_.end(),
                    [](const auto* rule, const auto& open) { return rule == open.first; })
          .first;
  while (openRules_.size() > static_cast<std::size_t>(changed - rules.begin())) {
    openRules_.pop_back();
  }
  for (auto rule = changed; rule != rules.end(); ++rule) {
    const auto& call = antlrcpp::downCast<const antlr4::atn::RuleTransition&>(
        *atn.states[(*rule)->invokingState]->transitions[0]);
    Context context = antlr4::atn::SingletonPredictionContext::create(
        openRules_.empty() ? PredictionContext::EMPTY : openRules_.back().second,
        call.followState->stateNumber);
    context->hashCode();  // cached by the context, so hashing the next one does not recurse
    openRules_.emplace_back(*rule, std::move(context));
  }
  return openRules_.empty() ? PredictionContext::EMPTY : openRules_.back().second;
}

void CallPredictor::spend(std::size_t work) {
  if (work > workLeft_) {
    throw std::length_error("the openCypher text takes too long to be understood");
  }
  workLeft_ -= work;
}

}  // namespace vorn
