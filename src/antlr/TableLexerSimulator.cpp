#include "antlr/TableLexerSimulator.h"

#include <CharStream.h>
#include <Lexer.h>
#include <LexerNoViableAltException.h>
#include <Token.h>

#include "LexerTables.h"

namespace vorn {

TableLexerSimulator::TableLexerSimulator(antlr4::Lexer& lexer)
    : LexerATNSimulator(&lexer, lexer.getATN(), noStates_, noContexts_) {}

std::size_t TableLexerSimulator::match(antlr4::CharStream* input, std::size_t /*mode*/) {
  _startIndex = input->index();
  std::size_t type = 0;
  SimState end;
  const auto accepts = [&](std::size_t ending) {
    if (ending != 0) {
      type = ending;
      end = {input->index(), _line, _charPositionInLine, nullptr};
    }
  };
  std::uint16_t state = LexerTables::start;
  std::size_t symbol = input->LA(1);
  for (; symbol != antlr4::Token::EOF; symbol = input->LA(1)) {
    const std::uint16_t next =
        LexerTables::next(state, LexerTables::classOf(static_cast<std::uint32_t>(symbol)));
    if (next == LexerTables::dead) {
      break;
    }
    state = next;
    consume(input);
    accepts(LexerTables::typeOf(state));
  }
  if (symbol == antlr4::Token::EOF) {
    accepts(LexerTables::typeAtEnd(state));
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
