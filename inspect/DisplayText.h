#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace inspect {

// All three take UTF-8.

/// The text on one line and without characters that would move the cursor or turn the direction of
/// writing: a line feed reads \n.
std::string escapeControls(std::string_view text);

/// What a reader takes for one character each: a letter with its combining marks, a joined emoji.
std::vector<std::string_view> graphemeClusters(std::string_view text);

/// The number of terminal cells that text without control characters takes.
std::size_t displayWidth(std::string_view text);

}  // namespace inspect
