#include "PredictionTables.h"

#include <atn/ATN.h>
#include <atn/ATNConfig.h>
#include <atn/ATNConfigSet.h>
#include <dfa/DFAState.h>

#include <array>
#include <cstddef>
#include <memory>
#include <mutex>
#include <new>
#include <unordered_set>
#include <utility>
#include <vector>

namespace vorn {

namespace {

// A configuration takes about 170 bytes, all that belongs to it included: this is some 64 MiB.
constexpr std::size_t maxConfigurations = 400'000;

// The edges of a state take as much in the index as so many configurations.
constexpr std::size_t configurationsOfEdges = 7;

// Is never destroyed: at the end of the process other threads may still make calls, and Windows has
// ended them by then wherever they were, maybe holding the mutex.
struct Shared {
  static Shared& instance() {
    alignas(Shared) static std::array<std::byte, sizeof(Shared)> storage;
    // NOLINTNEXTLINE(cppcoreguidelines-avoid-non-const-global-variables): guarded by its mutex
    static auto* const shared = ::new (storage.data()) Shared;
    return *shared;
  }

  std::mutex mutex;
  std::shared_ptr<PredictionTables> tables;
};

using Context = std::shared_ptr<const antlr4::atn::PredictionContext>;

// Appends a context and all that it refers to, these first, unless they were seen before.
void append(const Context& context, std::unordered_set<const void*>& seen,
            std::vector<Context>& contexts) {
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
      contexts.push_back(current);
      open.pop_back();
    }
  }
}

std::vector<Context> contextsOf(const std::vector<antlr4::dfa::DFA>& decisions) {
  std::unordered_set<const void*> seen;
  std::vector<Context> contexts;
  for (const antlr4::dfa::DFA& decision : decisions) {
    for (const antlr4::dfa::DFAState* state : decision.states) {
      for (const auto& configuration : state->configs->configs) {
        append(configuration->context, seen, contexts);
      }
    }
  }
  return contexts;
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

// A context keeps the one that it refers to alive. Such a chain is as long as a text was deep, and
// would be released by recursion on a stack that may be smaller than the one of that text.
PredictionTables::~PredictionTables() {
  try {
    held.contexts = contextsOf(decisions);
  } catch (const std::bad_alloc&) {
    held.contexts.clear();
  }
}

PredictionTables::HeldContexts::~HeldContexts() {
  while (!contexts.empty()) {
    contexts.pop_back();
  }
}

std::shared_ptr<PredictionTables> PredictionTables::current(const antlr4::atn::ATN& atn) {
  Shared& shared = Shared::instance();
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
  Shared& shared = Shared::instance();
  const std::lock_guard<std::mutex> lock(shared.mutex);
  shared.tables.reset();
}

}  // namespace vorn
