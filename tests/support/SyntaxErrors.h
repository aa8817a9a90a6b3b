#pragma once

#include <Exceptions.h>

#include <string>
#include <string_view>

#include "antlr/AntlrPipeline.h"
#include "support/Pipeline.h"

/// Stands for the message if a text has no error.
inline const std::string noSyntaxError = "no error";

/// The message of the syntax error that a parse ends with.
template <typename Parse>
std::string syntaxErrorOf(const Parse& parse) {
  try {
    parse();
  } catch (const antlr4::ParseCancellationException& error) {
    return error.what();
  }
  return noSyntaxError;
}

/// The message for a query from the library's ANTLR pipeline.
inline std::string syntaxErrorOfQuery(std::string_view utf8) {
  return syntaxErrorOf([&] { vorn::AntlrPipeline(utf8).parseQuery(); });
}

inline std::string syntaxErrorOfExpression(std::string_view utf8) {
  return syntaxErrorOf([&] { vorn::AntlrPipeline(utf8).parseExpression(); });
}

/// The message for a query from a pipeline of the plain runtime.
inline std::string bareSyntaxErrorOfQuery(std::string_view utf8) {
  return syntaxErrorOf([&] { Pipeline(utf8).parser.oC_Cypher(); });
}

inline std::string bareSyntaxErrorOfExpression(std::string_view utf8) {
  return syntaxErrorOf([&] { Pipeline(utf8).parser.oC_Expression(); });
}
