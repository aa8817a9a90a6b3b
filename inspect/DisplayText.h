#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace inspect {

/// The text on one line and without characters that would move the cursor, turn the direction of
/// writing or stay unseen: a line feed reads \n. A byte that is not UTF-8 reads \xff.
std::string escapeControls(std::string_view text);

/// The same for a text of several lines, which keeps its line ends and tabs.
std::string escapeControlsInLines(std::string_view text);

/// The same for JSON, whose meaning stays.
std::string escapeControlsInJson(std::string_view json);

// The functions below take well-formed UTF-8.

/// The text in parts that a reader takes for one character each: a letter with its combining marks,
/// a joined emoji.
std::vector<std::string_view> graphemeClusters(std::string_view text);

/// The number of terminal cells that text without control characters takes.
std::size_t displayWidth(std::string_view text);

}  // namespace inspect
