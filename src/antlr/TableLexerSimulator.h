#pragma once

#include <atn/LexerATNSimulator.h>
#include <atn/PredictionContextCache.h>
#include <dfa/DFA.h>

#include <cstddef>
#include <vector>

namespace vorn {

/// Matches tokens as the runtime does, along the compiled automaton.
class TableLexerSimulator final : public antlr4::atn::LexerATNSimulator {
 public:
  explicit TableLexerSimulator(antlr4::Lexer& lexer);

  std::size_t match(antlr4::CharStream* input, std::size_t mode) override;

 private:
  // The base class refers to these two, which stay empty.
  std::vector<antlr4::dfa::DFA> noStates_;
  antlr4::atn::PredictionContextCache noContexts_;
};

}  // namespace vorn
