#pragma once

#include <dfa/DFAState.h>

#include <array>
#include <atomic>
#include <cstddef>
#include <deque>
#include <mutex>
#include <unordered_map>
#include <vector>

namespace vorn {

/// The states and edges that the automata of a lexer or a parser have so far, for readers that take
/// no lock while others add to them. The runtime takes a lock and asks a hash table at each symbol,
/// which was a quarter of the time of a call whose shapes are known.
class DfaIndex {
 public:
  class State;

 private:
  // One for the end of the input, then one for each character of ASCII or each token type.
  using Edges = std::array<std::atomic<State*>, 136>;

  // For the characters beyond ASCII, of which the runtime itself remembers no edges.
  struct FarEdge {
    const State* from;
    std::size_t symbol;
    State* target;
  };
  // Who comes first keeps the place, so that nothing a reader may look at goes away.
  using FarEdges = std::array<std::atomic<const FarEdge*>, 4096>;

 public:
  class State {
   public:
    explicit State(antlr4::dfa::DFAState& stateOfRuntime)
        : runtimeState(stateOfRuntime),
          prediction(stateOfRuntime.prediction),
          isAcceptState(stateOfRuntime.isAcceptState),
          requiresFullContext(stateOfRuntime.requiresFullContext) {}

    antlr4::dfa::DFAState& runtimeState;
    // As in the runtime's state, but close to the edges.
    const std::size_t prediction;
    const bool isAcceptState;
    const bool requiresFullContext;

   private:
    friend class DfaIndex;
    std::atomic<Edges*> edges{nullptr};
  };

  explicit DfaIndex(std::size_t automata) : starts(automata) {}

  /// Where an automaton starts, or nullptr if that is not known yet.
  [[nodiscard]] State* start(std::size_t automaton) const {
    return starts[automaton].load(std::memory_order_acquire);
  }

  /// The state behind a symbol, or nullptr if that is not known yet.
  [[nodiscard]] State* next(const State& from, std::size_t symbol) const {
    const std::size_t place = placeOf(symbol);
    if (place >= std::tuple_size_v<Edges>) {
      return farNext(from, symbol);
    }
    const Edges* const known = from.edges.load(std::memory_order_acquire);
    return known == nullptr ? nullptr : (*known)[place].load(std::memory_order_acquire);
  }

  /// Remembers where an automaton starts. The state must not change any more, here and below.
  State& setStart(std::size_t automaton, antlr4::dfa::DFAState& start);

  /// Remembers the state behind a symbol.
  State& connect(State& from, std::size_t symbol, antlr4::dfa::DFAState& target);

  /// How many states have edges, which take about a KiB each.
  [[nodiscard]] std::size_t statesWithEdges() const {
    return usedEdges.load(std::memory_order_relaxed);
  }

 private:
  // The end of the input is the highest number, so it comes first.
  static std::size_t placeOf(std::size_t symbol) { return symbol + 1; }
  static std::size_t farPlaceOf(const State& from, std::size_t symbol);

  [[nodiscard]] State* farNext(const State& from, std::size_t symbol) const;
  State& stateFor(antlr4::dfa::DFAState& runtimeState);
  Edges& edgesOf(State& state);

  std::vector<std::atomic<State*>> starts;
  FarEdges farEdges{};
  std::mutex mutex;  // of those who add, for what follows
  std::unordered_map<const antlr4::dfa::DFAState*, State> states;
  std::deque<Edges> ownedEdges;
  std::deque<FarEdge> ownedFarEdges;
  std::atomic<std::size_t> usedEdges{0};
};

}  // namespace vorn
