#include "ThrowingErrorListener.h"

#include <Exceptions.h>

#include <locale>
#include <sstream>

ThrowingErrorListener& ThrowingErrorListener::instance() {
  static ThrowingErrorListener listener;
  return listener;
}

void ThrowingErrorListener::syntaxError(antlr4::Recognizer* /*recognizer*/,
                                        antlr4::Token* /*offendingSymbol*/, size_t line,
                                        size_t charPositionInLine, const std::string& message,
                                        std::exception_ptr /*exception*/) {
  std::ostringstream text;
  text.exceptions(std::ios_base::badbit);  // or a stream keeps quiet about a failed allocation
  // The host's global locale may group digits; the numbers are plain decimals all the same.
  text.imbue(std::locale::classic());
  text << "line " << line << ":" << charPositionInLine << " " << message;
  throw antlr4::ParseCancellationException(text.str());
}
