#pragma once

#include <BaseErrorListener.h>

/// Makes the first lexical or syntax error fatal: reports it as an
/// antlr4::ParseCancellationException whose message is "line ", the line, ":", the position in the
/// line, " " and the runtime's message.
class ThrowingErrorListener : public antlr4::BaseErrorListener {
 public:
  /// The one listener of the process. It has no state, so all threads share it.
  static ThrowingErrorListener& instance();

  [[noreturn]] void syntaxError(antlr4::Recognizer* recognizer, antlr4::Token* offendingSymbol,
                                size_t line, size_t charPositionInLine, const std::string& message,
                                std::exception_ptr exception) override;
};
