#include "FailSafeSimulators.h"

#include <CharStream.h>
#include <NoViableAltException.h>
#include <Parser.h>
#include <ParserRuleContext.h>
#include <Token.h>
#include <TokenStream.h>
#include <atn/ATN.h>
#include <atn/ATNConfig.h>
#include <atn/ATNConfigSet.h>
#include <atn/DecisionState.h>
#include <atn/OrderedATNConfigSet.h>
#include <atn/PredictionContext.h>
#include <atn/PredictionMode.h>
#include <atn/RuleTransition.h>
#include <atn/SingletonPredictionContext.h>
#include <dfa/DFA.h>
#include <support/Casts.h>

#include <utility>
#include <vector>

namespace vorn {

using antlr4::atn::ATN;
using antlr4::atn::ATNConfig;
using antlr4::atn::ATNConfigSet;
using antlr4::atn::PredictionContext;
using antlr4::atn::PredictionModeClass;
using antlr4::atn::RuleTransition;
using antlr4::atn::SingletonPredictionContext;
using antlr4::dfa::DFA;
using antlr4::dfa::DFAState;

FailSafeParserSimulator::FailSafeParserSimulator(antlr4::Parser& ofParser,
                                                 std::shared_ptr<PredictionTables> someTables)
    : ParserATNSimulator(&ofParser, ofParser.getATN(), someTables->decisions, someTables->contexts),
      tables(std::move(someTables)) {}

size_t FailSafeParserSimulator::adaptivePredict(antlr4::TokenStream* input, size_t decision,
                                                antlr4::ParserRuleContext* outerContext) {
  const size_t startIndex = input->index();
  const size_t known = knownAlternative(input, decision);
  if (input->index() != startIndex) {
    input->seek(startIndex);
  }
  return known != ATN::INVALID_ALT_NUMBER
             ? known
             : ParserATNSimulator::adaptivePredict(input, decision, outerContext);
}

// The alternative that a path through known states leads to, if it does so without the full
// context.
size_t FailSafeParserSimulator::knownAlternative(antlr4::TokenStream* input,
                                                 size_t decision) const {
  const DfaIndex::State* state = tables->index.start(decision);
  while (state != nullptr) {
    const size_t symbol = input->LA(1);
    state = tables->index.next(*state, symbol);
    if (state == nullptr || &state->runtimeState == ERROR.get() || state->requiresFullContext) {
      break;
    }
    if (state->isAcceptState) {
      return state->prediction;
    }
    if (symbol != antlr4::Token::EOF) {
      input->consume();
    }
  }
  return ATN::INVALID_ALT_NUMBER;
}

// The runtime enters the state first and then does what may fail, while the caller still owns it.
DFAState* FailSafeParserSimulator::addDFAState(DFA& dfa, DFAState* state) {
  try {
    return ParserATNSimulator::addDFAState(dfa, state);
  } catch (...) {
    const auto entered = dfa.states.find(state);
    if (entered != dfa.states.end() && *entered == state) {
      dfa.states.erase(entered);
    }
    throw;
  }
}

// As in the runtime, but the new state has an owner until it is entered. The grammar has no
// predicates.
DFAState* FailSafeParserSimulator::computeTargetState(DFA& dfa, DFAState* previous, size_t symbol) {
  std::unique_ptr<ATNConfigSet> reach = computeReachSet(previous->configs.get(), symbol, false);
  if (reach == nullptr) {
    return addDFAEdge(dfa, previous, static_cast<ssize_t>(symbol), ERROR.get());
  }
  auto target = std::make_unique<DFAState>(std::move(reach));
  ATNConfigSet& configs = *target->configs;
  const size_t predicted = getUniqueAlt(&configs);
  if (predicted != ATN::INVALID_ALT_NUMBER) {
    configs.uniqueAlt = predicted;
    target->isAcceptState = true;
    target->prediction = predicted;
  } else if (PredictionModeClass::hasSLLConflictTerminatingPrediction(getPredictionMode(),
                                                                      &configs)) {
    configs.conflictingAlts = getConflictingAlts(&configs);
    target->requiresFullContext = true;
    target->isAcceptState = true;
    target->prediction = configs.conflictingAlts.nextSetBit(0);
  }
  // Without a state to come from it is entered only.
  DFAState* const entered = addDFAEdge(dfa, nullptr, static_cast<ssize_t>(symbol), target.get());
  if (entered == target.get()) {
    tables->configurations += configs.size();
    static_cast<void>(target.release());  // the table's from here on
  }
  return addDFAEdge(dfa, previous, static_cast<ssize_t>(symbol), entered);
}

// As in the runtime, but along the index, and without its copies of the configurations by
// predicates, of which the grammar has none.
size_t FailSafeParserSimulator::execATN(DFA& dfa, DFAState* start, antlr4::TokenStream* input,
                                        size_t startIndex,
                                        antlr4::ParserRuleContext* outerContext) {
  DfaIndex::State* previous = &tables->index.setStart(dfa.decision, *start);
  size_t symbol = input->LA(1);
  while (true) {
    DfaIndex::State* next = tables->index.next(*previous, symbol);
    if (next == nullptr) {
      next = &tables->index.connect(*previous, symbol,
                                    *computeTargetState(dfa, &previous->runtimeState, symbol));
    }
    DFAState* const target = &next->runtimeState;
    if (target == ERROR.get()) {
      return finishedAlternative(previous->runtimeState.configs.get(), input, startIndex,
                                 outerContext);
    }
    if (target->requiresFullContext) {
      const std::unique_ptr<ATNConfigSet> fullStart = fullContextStart(dfa, outerContext);
      reportAttemptingFullContext(dfa, antlrcpp::BitSet(), target->configs.get(), startIndex,
                                  input->index());
      return execATNWithFullContext(dfa, target, fullStart.get(), input, startIndex, outerContext);
    }
    if (target->isAcceptState) {
      return target->prediction;
    }
    previous = next;
    if (symbol != antlr4::Token::EOF) {
      input->consume();
      symbol = input->LA(1);
    }
  }
}

// As in the runtime, but for the context.
std::unique_ptr<ATNConfigSet> FailSafeParserSimulator::fullContextStart(
    const DFA& dfa, const antlr4::RuleContext* innermost) {
  const HeldContexts::Context context = contextOf(innermost);
  auto start = std::make_unique<ATNConfigSet>(true);
  std::size_t alternative = 0;
  for (const auto& transition : dfa.atnStartState->transitions) {
    const auto configuration =
        std::make_shared<ATNConfig>(transition->target, ++alternative, context);
    ATNConfig::Set busy;
    closure(configuration, start.get(), busy, true, true, false);
  }
  return start;
}

// The runtime builds such a chain, hashes it and releases it by recursion over all open rules.
HeldContexts::Context FailSafeParserSimulator::contextOf(const antlr4::RuleContext* innermost) {
  constexpr std::size_t usualDepth = 64;
  std::vector<std::size_t> callers;
  callers.reserve(usualDepth);
  for (const auto* rule = innermost; rule->parent != nullptr;
       rule = antlrcpp::downCast<const antlr4::RuleContext*>(rule->parent)) {
    callers.push_back(rule->invokingState);
  }
  openRules.release();
  openRules.reserve(callers.size());
  HeldContexts::Context context = PredictionContext::EMPTY;
  for (auto caller = callers.rbegin(); caller != callers.rend(); ++caller) {
    const auto& call =
        antlrcpp::downCast<const RuleTransition&>(*atn.states[*caller]->transitions[0]);
    context = SingletonPredictionContext::create(std::move(context), call.followState->stateNumber);
    context->hashCode();
    openRules.hold(context);
  }
  return context;
}

// The alternative that was complete where the text went on with nothing that fits, or the error.
size_t FailSafeParserSimulator::finishedAlternative(ATNConfigSet* configs,
                                                    antlr4::TokenStream* input, size_t startIndex,
                                                    antlr4::ParserRuleContext* outerContext) {
  const size_t alternative = getAltThatFinishedDecisionEntryRule(configs);
  if (alternative == ATN::INVALID_ALT_NUMBER) {
    // Nobody looks at the configurations of the error.
    // NOLINTNEXTLINE(cert-err60-cpp): the type is the runtime's
    throw noViableAlt(input, outerContext, nullptr, startIndex, false);
  }
  return alternative;
}

// As in the runtime, but the sets in between have an owner.
size_t FailSafeParserSimulator::execATNWithFullContext(DFA& dfa, DFAState* state,
                                                       ATNConfigSet* start,
                                                       antlr4::TokenStream* input,
                                                       size_t startIndex,
                                                       antlr4::ParserRuleContext* outerContext) {
  std::unique_ptr<ATNConfigSet> owned;
  ATNConfigSet* previous = start;
  input->seek(startIndex);
  size_t symbol = input->LA(1);
  while (true) {
    std::unique_ptr<ATNConfigSet> reach = computeReachSet(previous, symbol, true);
    if (reach == nullptr) {
      return finishedAlternative(previous, input, startIndex, outerContext);
    }
    owned = std::move(reach);
    previous = owned.get();
    previous->uniqueAlt = getUniqueAlt(previous);
    if (previous->uniqueAlt != ATN::INVALID_ALT_NUMBER) {
      reportContextSensitivity(dfa, previous->uniqueAlt, previous, startIndex, input->index());
      return previous->uniqueAlt;
    }
    const size_t predicted = PredictionModeClass::resolvesToJustOneViableAlt(
        PredictionModeClass::getConflictingAltSubsets(previous));
    if (predicted != ATN::INVALID_ALT_NUMBER) {
      reportAmbiguity(dfa, state, startIndex, input->index(), false, previous->getAlts(), previous);
      return predicted;
    }
    if (symbol != antlr4::Token::EOF) {
      input->consume();
      symbol = input->LA(1);
    }
  }
}

FailSafeLexerSimulator::FailSafeLexerSimulator(antlr4::Lexer& ofLexer,
                                               const LexerATNSimulator& other, DfaIndex& itsIndex)
    : LexerATNSimulator(&ofLexer, other.atn, other._decisionToDFA, other.getSharedContextCache()),
      index(itsIndex) {}

size_t FailSafeLexerSimulator::match(antlr4::CharStream* input, size_t mode) {
  DfaIndex::State* const start = index.start(mode);
  if (start == nullptr) {
    return LexerATNSimulator::match(input, mode);
  }
  _mode = mode;
  _startIndex = input->index();
  _prevAccept.reset();
  return matchFrom(*start, input);
}

size_t FailSafeLexerSimulator::execATN(antlr4::CharStream* input, DFAState* start) {
  return matchFrom(index.setStart(_mode, *start), input);
}

// As in the runtime, but along the index, which knows what follows on the end of the input too. No
// token of the grammar is empty.
size_t FailSafeLexerSimulator::matchFrom(DfaIndex::State& start, antlr4::CharStream* input) {
  DfaIndex::State* state = &start;
  size_t symbol = input->LA(1);
  while (true) {
    DfaIndex::State* next = index.next(*state, symbol);
    if (next == nullptr) {
      next =
          &index.connect(*state, symbol, *computeTargetState(input, &state->runtimeState, symbol));
    }
    if (&next->runtimeState == ERROR.get()) {
      break;
    }
    if (symbol != antlr4::Token::EOF) {
      consume(input);
    }
    if (next->isAcceptState) {
      captureSimState(input, &next->runtimeState);
      if (symbol == antlr4::Token::EOF) {
        break;
      }
    }
    symbol = input->LA(1);
    state = next;
  }
  return failOrAccept(input, state->runtimeState.configs.get(), symbol);
}

// As in the runtime, but the set has an owner while it is filled.
DFAState* FailSafeLexerSimulator::computeTargetState(antlr4::CharStream* input, DFAState* previous,
                                                     size_t symbol) {
  auto reach = std::make_unique<antlr4::atn::OrderedATNConfigSet>();
  getReachableConfigSet(input, previous->configs.get(), reach.get(), symbol);
  if (!reach->isEmpty()) {
    return addDFAEdge(previous, symbol, reach.release());
  }
  if (!reach->hasSemanticContext) {
    addDFAEdge(previous, symbol, ERROR.get());
  }
  return ERROR.get();
}

// The runtime takes the set over and loses it if there is no memory for the state or its entry in
// the table. The state itself, without the set, is lost in the second case all the same.
DFAState* FailSafeLexerSimulator::addDFAState(ATNConfigSet* configs, bool suppressEdge) {
  try {
    return LexerATNSimulator::addDFAState(configs, suppressEdge);
  } catch (...) {
    delete configs;
    throw;
  }
}

}  // namespace vorn
