#include "Failure.h"

#include <stdexcept>
#include <typeinfo>

#include "Request.h"
#include "SyntaxErrorView.h"

namespace inspect {

namespace {

Failure::Kind kindOf(const std::exception& exception) {
  if (dynamic_cast<const InputError*>(&exception) != nullptr) {
    return Failure::Kind::Input;
  }
  // Types derived from this one, such as std::length_error, mean something else.
  if (typeid(exception) == typeid(std::logic_error)) {
    return Failure::Kind::Forbidden;
  }
  if (placeOfSyntaxError(exception.what())) {
    return Failure::Kind::Syntax;
  }
  return Failure::Kind::Other;
}

const char* nameOf(Failure::Kind kind) {
  switch (kind) {
    case Failure::Kind::Input:
      return "input";
    case Failure::Kind::Syntax:
      return "syntax";
    case Failure::Kind::Forbidden:
      return "forbidden";
    case Failure::Kind::TooLarge:
      return "too large";
    case Failure::Kind::Other:
      break;
  }
  return "other";
}

}  // namespace

Failure failureOf(const std::exception& exception) { return {kindOf(exception), exception.what()}; }

OrderedJson toJson(const Failure& failure) {
  OrderedJson error;
  error["error"] = {{"kind", nameOf(failure.kind)}, {"message", failure.message}};
  return error;
}

}  // namespace inspect
