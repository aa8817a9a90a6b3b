#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace inspect {

/// The line of the text that holds the place, and below it a caret. The place is an offset in
/// bytes.
std::string syntaxErrorView(std::string_view text, std::size_t place);

}  // namespace inspect
