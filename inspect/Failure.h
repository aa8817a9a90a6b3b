#pragma once

#include <cstddef>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

#include "Analysis.h"
#include "Request.h"

namespace inspect {

struct Place {
  std::size_t line;    ///< counted from 1
  std::size_t column;  ///< code points before it in the line
  std::size_t offset;  ///< bytes before it in the text
};

/// The reason why there is no answer.
struct Failure {
  std::string_view kind;
  std::string message;  ///< as the library words it, without the place
  std::optional<Place> place;
};

namespace kinds {
constexpr std::string_view input = "input";  ///< the request is not what the command takes
constexpr std::string_view syntax = "syntax";
constexpr std::string_view empty = "empty";  ///< nothing but white space and comments
constexpr std::string_view forbidden = "forbidden";
constexpr std::string_view tooDeep = "too deep";
constexpr std::string_view tooLarge = "too large";
constexpr std::string_view notWellFormed = "not well formed";
constexpr std::string_view outOfMemory = "out of memory";
constexpr std::string_view other = "other";
}  // namespace kinds

/// Why the library did not answer a question about the text.
std::optional<Failure> failureOf(const Analysis& analysis, std::string_view text);

/// The message with the place before it, if there is one: "line L:C " and the message.
std::string wholeMessage(const Failure& failure);

/// The member "error" of an answer.
OrderedJson toJson(const Failure& failure);

}  // namespace inspect
