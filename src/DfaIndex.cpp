#include "DfaIndex.h"

#include <functional>

namespace vorn {

DfaIndex::State& DfaIndex::setStart(std::size_t automaton, antlr4::dfa::DFAState& start) {
  if (State* const known = this->start(automaton); known != nullptr) {
    return *known;
  }
  const std::lock_guard<std::mutex> lock(mutex);
  State& state = stateFor(start);
  starts[automaton].store(&state, std::memory_order_release);
  return state;
}

DfaIndex::State& DfaIndex::connect(State& from, std::size_t symbol, antlr4::dfa::DFAState& target) {
  const std::lock_guard<std::mutex> lock(mutex);
  State& state = stateFor(target);
  const std::size_t place = placeOf(symbol);
  if (place < std::tuple_size_v<Edges>) {
    edgesOf(from)[place].store(&state, std::memory_order_release);
    return state;
  }
  std::atomic<const FarEdge*>& far = farEdges[farPlaceOf(from, symbol)];
  if (far.load(std::memory_order_relaxed) == nullptr) {
    far.store(&ownedFarEdges.emplace_back(FarEdge{&from, symbol, &state}),
              std::memory_order_release);
  }
  return state;
}

std::size_t DfaIndex::farPlaceOf(const State& from, std::size_t symbol) {
  constexpr std::size_t spread = 31;
  return (std::hash<const State*>()(&from) / alignof(State) * spread + symbol) %
         std::tuple_size_v<FarEdges>;
}

DfaIndex::State* DfaIndex::farNext(const State& from, std::size_t symbol) const {
  const FarEdge* const edge = farEdges[farPlaceOf(from, symbol)].load(std::memory_order_acquire);
  return edge != nullptr && edge->from == &from && edge->symbol == symbol ? edge->target : nullptr;
}

DfaIndex::State& DfaIndex::stateFor(antlr4::dfa::DFAState& runtimeState) {
  return states.try_emplace(&runtimeState, runtimeState).first->second;
}

DfaIndex::Edges& DfaIndex::edgesOf(State& state) {
  Edges* edges = state.edges.load(std::memory_order_relaxed);
  if (edges == nullptr) {
    edges = &ownedEdges.emplace_back();
    state.edges.store(edges, std::memory_order_release);
    usedEdges.store(ownedEdges.size(), std::memory_order_relaxed);
  }
  return *edges;
}

}  // namespace vorn
