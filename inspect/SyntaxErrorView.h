#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace inspect {

struct Place {
  std::size_t line;    ///< counted from 1
  std::size_t column;  ///< code points before it in the line
};

/// The place that a message names when it begins with "line L:C ".
std::optional<Place> placeOfSyntaxError(std::string_view message);

/// The line of the text that holds the place, and below it a caret. Nothing if there is no such
/// line.
std::string syntaxErrorView(std::string_view text, Place place);

}  // namespace inspect
