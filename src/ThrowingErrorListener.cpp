#include "ThrowingErrorListener.h"

#include <Exceptions.h>

#include <string>

#include "NeverDestroyed.h"

// Half destroyed it would take every text for an error-free one.
ThrowingErrorListener& ThrowingErrorListener::instance() {
  return vorn::neverDestroyed<ThrowingErrorListener>();
}

void ThrowingErrorListener::syntaxError(antlr4::Recognizer* /*recognizer*/,
                                        antlr4::Token* /*offendingSymbol*/, size_t line,
                                        size_t charPositionInLine, const std::string& message,
                                        std::exception_ptr /*exception*/) {
  throw antlr4::ParseCancellationException("line " + std::to_string(line) + ":" +
                                           std::to_string(charPositionInLine) + " " + message);
}
