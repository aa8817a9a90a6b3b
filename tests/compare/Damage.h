#pragma once

#include <string>
#include <string_view>

#include "Drawing.h"
#include "Random.h"
#include "Subject.h"

namespace compare {

/// The text with one damage: a token removed, doubled, swapped or replaced, white space removed or
/// inserted, a character changed, or the end cut off.
std::string damaged(std::string_view text, const std::vector<Token>& tokens, Drawing& drawing,
                    Random& random);

/// The text and behind it the beginning of a continuation.
std::string withTail(std::string_view text, Drawing& drawing, Random& random);

}  // namespace compare
