#pragma once

#include <string>
#include <string_view>

namespace vorn {

// A name may be written bare or between back quotes, with a back quote inside it written twice.
// Both functions work on UTF-8 bytes and touch nothing but back quotes.

/// The name between back quotes. A name that begins with one counts as quoted and is left as it is.
std::string quoteSymbolicName(std::string_view name);

/// The text without back quotes, wherever they stand. A doubled back quote inside a quoted name
/// becomes a single one. String literals are no exception: their back quotes go too.
std::string unquoteSymbolicName(std::string_view text);

}  // namespace vorn
