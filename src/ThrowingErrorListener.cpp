#include "ThrowingErrorListener.h"

#include <Exceptions.h>

#include <string>

ThrowingErrorListener& ThrowingErrorListener::instance() {
  static ThrowingErrorListener listener;
  return listener;
}

void ThrowingErrorListener::syntaxError(antlr4::Recognizer* /*recognizer*/,
                                        antlr4::Token* /*offendingSymbol*/, size_t line,
                                        size_t charPositionInLine, const std::string& message,
                                        std::exception_ptr /*exception*/) {
  throw antlr4::ParseCancellationException("line " + std::to_string(line) + ":" +
                                           std::to_string(charPositionInLine) + " " + message);
}
