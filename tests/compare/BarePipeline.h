#pragma once

#include <ANTLRInputStream.h>
#include <BaseErrorListener.h>
#include <CommonTokenStream.h>
#include <Exceptions.h>

#include <memory>
#include <string>
#include <string_view>

#include "CypherLexer.h"
#include "CypherParser.h"
#include "ReferenceTables.h"
#include "Subject.h"

namespace compare {

/// Ends the parse at the first error.
class FirstErrorEnds : public antlr4::BaseErrorListener {
 public:
  [[noreturn]] void syntaxError(antlr4::Recognizer* recognizer, antlr4::Token* offending,
                                std::size_t line, std::size_t column, const std::string& message,
                                std::exception_ptr cause) override;

  bool atEnd = false;  // the first error is the end of the text
};

/// The generated recognisers with the plain runtime, over one text.
struct BarePipeline {
  explicit BarePipeline(std::string_view utf8);

  FirstErrorEnds errors;
  antlr4::ANTLRInputStream input;
  vorn::CypherLexer lexer;
  antlr4::CommonTokenStream tokens;
  vorn::CypherParser parser;
  std::shared_ptr<ReferenceTables> tables;
  antlr4::ParserRuleContext* tree = nullptr;  // owned by the parser; null before run()

  void run(Entry entry);
};

}  // namespace compare
