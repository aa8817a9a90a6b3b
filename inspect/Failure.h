#pragma once

#include <exception>
#include <string>

#include "Request.h"

namespace inspect {

/// Why there is no answer.
struct Failure {
  enum class Kind {
    Input,      ///< the request is not what the command takes
    Syntax,     ///< the text is no openCypher
    Forbidden,  ///< the text is openCypher, but has no place in a property filter
    TooLarge,
    Other,
  };

  Kind kind;
  std::string message;
};

Failure failureOf(const std::exception& exception);

OrderedJson toJson(const Failure& failure);

}  // namespace inspect
