#pragma once

#include <string>
#include <string_view>

namespace inspect {

/// Marks that stand in a skeleton in place of characters of the text.
namespace marks {
constexpr char dash = '\x01';  ///< a dash that is no hyphen
constexpr char leftArrowHead = '\x02';
constexpr char rightArrowHead = '\x03';
constexpr char unclosed = '\x04';     ///< a quotation mark or a back quote
constexpr char badEscape = '\x05';    ///< the back slash of an escape that does not exist
constexpr char openComment = '\x06';  ///< the start of a comment that is not closed
constexpr char lastStar = '\x0E';     ///< a star before a slash that does not close it
}  // namespace marks

/// A text in UTF-8 as a pattern can search it, byte for byte in the same place. Comments and white
/// space are blanks; strings are "xxx", names between back quotes and letters beyond ASCII are xxx.
std::string skeletonOf(std::string_view text);

/// Whether the text holds nothing but white space and comments.
bool isEmpty(std::string_view text);

}  // namespace inspect
