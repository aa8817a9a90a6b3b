#include "Failure.h"

#include "Skeleton.h"

namespace inspect {

namespace {

std::string_view kindOf(const Analysis& analysis, std::string_view text) {
  switch (vorn_error_kind(analysis.get())) {
    case VORN_SYNTAX:
      return isEmpty(text) ? kinds::empty : kinds::syntax;
    case VORN_FORBIDDEN:
      return kinds::forbidden;
    case VORN_TOO_DEEP:
      return kinds::tooDeep;
    case VORN_TOO_LARGE:
      return kinds::tooLarge;
    case VORN_NOT_WELL_FORMED:
      return kinds::notWellFormed;
    case VORN_OUT_OF_MEMORY:
      return kinds::outOfMemory;
    default:
      return kinds::other;
  }
}

std::optional<Place> placeOf(const Analysis& analysis) {
  const Place place{vorn_error_line(analysis.get()), vorn_error_column(analysis.get()),
                    vorn_error_offset(analysis.get())};
  return place.line == 0 ? std::nullopt : std::optional(place);
}

}  // namespace

std::optional<Failure> failureOf(const Analysis& analysis, std::string_view text) {
  if (vorn_error_kind(analysis.get()) == VORN_NO_ERROR) {
    return std::nullopt;
  }
  return Failure{kindOf(analysis, text), std::string(textOf(analysis, vorn_error_message_utf8)),
                 placeOf(analysis)};
}

std::string wholeMessage(const Failure& failure) {
  return failure.place ? "line " + std::to_string(failure.place->line) + ":" +
                             std::to_string(failure.place->column) + " " + failure.message
                       : failure.message;
}

OrderedJson toJson(const Failure& failure) {
  OrderedJson error;
  error["kind"] = failure.kind;
  if (failure.place) {
    error["line"] = failure.place->line;
    error["column"] = failure.place->column;
  }
  error["message"] = wholeMessage(failure);
  return error;
}

}  // namespace inspect
