#include "ReferenceTables.h"

namespace compare {

ReferenceTables::ReferenceTables(const antlr4::atn::ATN& atn) {
  for (std::size_t i = 0; i < atn.getNumberOfDecisions(); ++i) {
    decisions.emplace_back(atn.getDecisionState(i), i);
  }
}

std::shared_ptr<ReferenceTables> ReferenceTables::current(const antlr4::atn::ATN& atn) {
  constexpr std::size_t mostStates = 50'000;  // a few hundred megabytes
  constexpr std::size_t textsBetweenLooks = 1024;
  static std::shared_ptr<ReferenceTables> tables;
  static std::size_t texts = 0;
  if (tables == nullptr || (++texts % textsBetweenLooks == 0 && tables->size() > mostStates)) {
    tables = std::make_shared<ReferenceTables>(atn);
  }
  return tables;
}

std::size_t ReferenceTables::size() const {
  std::size_t states = 0;
  for (const antlr4::dfa::DFA& decision : decisions) {
    states += decision.states.size();
  }
  return states;
}

}  // namespace compare
