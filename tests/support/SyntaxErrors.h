#pragma once

#include <Exceptions.h>

#include <string>
#include <string_view>

#include "antlr/AntlrPipeline.h"
#include "support/Pipeline.h"

/// What stands for the message of a text without an error.
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

/// That of a query in the library's ANTLR pipeline.
inline std::string syntaxErrorOfQuery(std::string_view utf8) {
  return syntaxErrorOf([&] { vorn::AntlrPipeline(utf8).parseQuery(); });
}

inline std::string syntaxErrorOfExpression(std::string_view utf8) {
  return syntaxErrorOf([&] { vorn::AntlrPipeline(utf8).parseExpression(); });
}

/// That of a query in a pipeline of the bare runtime.
inline std::string bareSyntaxErrorOfQuery(std::string_view utf8) {
  return syntaxErrorOf([&] { Pipeline(utf8).parser.oC_Cypher(); });
}

inline std::string bareSyntaxErrorOfExpression(std::string_view utf8) {
  return syntaxErrorOf([&] { Pipeline(utf8).parser.oC_Expression(); });
}
