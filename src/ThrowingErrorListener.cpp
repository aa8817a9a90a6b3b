#include "ThrowingErrorListener.h"

#include <Exceptions.h>

#include <array>
#include <cstddef>
#include <new>
#include <string>

// Is never destroyed: at the end of the process other threads, and what the host does last, may
// still make calls. Half destroyed it would take every text for an error-free one.
ThrowingErrorListener& ThrowingErrorListener::instance() {
  using Listener = ThrowingErrorListener;
  alignas(Listener) static std::array<std::byte, sizeof(Listener)> storage;
  // NOLINTNEXTLINE(cppcoreguidelines-avoid-non-const-global-variables): it has no state
  static auto* const listener = ::new (storage.data()) Listener;
  return *listener;
}

void ThrowingErrorListener::syntaxError(antlr4::Recognizer* /*recognizer*/,
                                        antlr4::Token* /*offendingSymbol*/, size_t line,
                                        size_t charPositionInLine, const std::string& message,
                                        std::exception_ptr /*exception*/) {
  throw antlr4::ParseCancellationException("line " + std::to_string(line) + ":" +
                                           std::to_string(charPositionInLine) + " " + message);
}
