#include "antlr/ThrowingErrorListener.h"

#include <Exceptions.h>

#include <cstddef>
#include <string>

#include "antlr/NeverDestroyed.h"

namespace {

// A function of its own, so that the unwinder need not pass all that this has to clean up.
[[gnu::noinline]] std::string messageAt(std::size_t line, std::size_t column,
                                        const std::string& message) {
  return "line " + std::to_string(line) + ":" + std::to_string(column) + " " + message;
}

}  // namespace

// Never destroyed: a destroyed listener would no longer throw, and every text would seem correct.
ThrowingErrorListener& ThrowingErrorListener::instance() {
  return vorn::neverDestroyed<ThrowingErrorListener>();
}

void ThrowingErrorListener::syntaxError(antlr4::Recognizer* /*recognizer*/,
                                        antlr4::Token* /*offendingSymbol*/, size_t line,
                                        size_t charPositionInLine, const std::string& message,
                                        std::exception_ptr /*exception*/) {
  throw antlr4::ParseCancellationException(messageAt(line, charPositionInLine, message));
}
