#include "antlr/TableLexerSimulator.h"

#include <CharStream.h>
#include <Lexer.h>
#include <LexerNoViableAltException.h>
#include <Token.h>

#include "antlr/LexerTables.h"

namespace vorn {

TableLexerSimulator::TableLexerSimulator(antlr4::Lexer& lexer)
    : LexerATNSimulator(&lexer, lexer.getATN(), noStates_, noContexts_) {}

std::size_t TableLexerSimulator::match(antlr4::CharStream* input, std::size_t /*mode*/) {
  _startIndex = input->index();
  std::size_t type = 0;
  SimState end;
  std::size_t symbol = input->LA(1);
  LexerTables::State state = LexerTables::start;
  while ((state = LexerTables::nextState(state, static_cast<char32_t>(symbol))) !=
         LexerTables::dead) {
    if (symbol != antlr4::Token::EOF) {
      consume(input);
    }
    if (const std::size_t ending = LexerTables::tokenType(state); ending != 0) {
      type = ending;
      end = {input->index(), _line, _charPositionInLine, nullptr};
    }
    if (symbol == antlr4::Token::EOF) {
      break;
    }
    symbol = input->LA(1);
  }
  if (type != 0) {
    accept(input, nullptr, _startIndex, end.index, end.line, end.charPos);
    return type;
  }
  if (symbol == antlr4::Token::EOF && input->index() == _startIndex) {
    return antlr4::Token::EOF;
  }
  // NOLINTNEXTLINE(cert-err60-cpp): the type is the runtime's
  throw antlr4::LexerNoViableAltException(_recog, input, _startIndex, nullptr);
}

}  // namespace vorn
