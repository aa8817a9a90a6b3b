#include "PredictionTables.h"

#include <atn/ATN.h>
#include <atn/ATNConfig.h>
#include <atn/ATNConfigSet.h>
#include <dfa/DFAState.h>

#include <cstddef>
#include <memory>
#include <mutex>
#include <new>
#include <unordered_set>
#include <utility>
#include <vector>

#include "NeverDestroyed.h"

namespace vorn {

namespace {

// A configuration takes about 170 bytes, all that belongs to it included: this is some 64 MiB.
constexpr std::size_t maxConfigurations = 400'000;

// The edges of a state take as much in the index as so many configurations.
constexpr std::size_t configurationsOfEdges = 7;

// Is never destroyed, on Windows for one more reason: at the end of the process it has ended the
// other threads wherever they were, maybe holding the mutex.
struct Shared {
  std::mutex mutex;
  std::shared_ptr<PredictionTables> tables;
};

using Context = HeldContexts::Context;

// Holds a context and all that it refers to, these first, unless they were seen before.
void hold(const Context& context, std::unordered_set<const void*>& seen, HeldContexts& held) {
  struct Visit {
    const Context* context;
    std::size_t next = 0;  // of those it refers to
  };
  std::vector<Visit> open;
  const auto enter = [&](const Context& entered) {
    if (entered != nullptr && seen.insert(entered.get()).second) {
      open.push_back({&entered});
    }
  };
  enter(context);
  while (!open.empty()) {
    Visit& visit = open.back();
    const Context& current = *visit.context;
    if (visit.next < current->size()) {
      enter(current->getParent(visit.next++));
    } else {
      held.hold(current);
      open.pop_back();
    }
  }
}

void holdContextsOf(const std::vector<antlr4::dfa::DFA>& decisions, HeldContexts& held) {
  std::unordered_set<const void*> seen;
  for (const antlr4::dfa::DFA& decision : decisions) {
    for (const antlr4::dfa::DFAState* state : decision.states) {
      for (const auto& configuration : state->configs->configs) {
        hold(configuration->context, seen, held);
      }
    }
  }
}

}  // namespace

PredictionTables::PredictionTables(const antlr4::atn::ATN& atn)
    : index(atn.getNumberOfDecisions()) {
  const std::size_t count = atn.getNumberOfDecisions();
  decisions.reserve(count);
  for (std::size_t i = 0; i < count; ++i) {
    decisions.emplace_back(atn.getDecisionState(i), i);
  }
}

// The stack may be smaller than the one of the deepest text.
PredictionTables::~PredictionTables() {
  try {
    holdContextsOf(decisions, held);
  } catch (const std::bad_alloc&) {
    held.release();
  }
}

std::shared_ptr<PredictionTables> PredictionTables::current(const antlr4::atn::ATN& atn) {
  auto& shared = neverDestroyed<Shared>();
  std::shared_ptr<PredictionTables> outgrown;  // goes after the lock
  const std::lock_guard<std::mutex> lock(shared.mutex);
  if (shared.tables == nullptr || shared.tables->isOutgrown()) {
    auto fresh = std::make_shared<PredictionTables>(atn);
    outgrown = std::exchange(shared.tables, std::move(fresh));
  }
  return shared.tables;
}

bool PredictionTables::isOutgrown() const {
  return configurations + index.statesWithEdges() * configurationsOfEdges > maxConfigurations;
}

void PredictionTables::release() {
  auto& shared = neverDestroyed<Shared>();
  const std::lock_guard<std::mutex> lock(shared.mutex);
  shared.tables.reset();
}

}  // namespace vorn
