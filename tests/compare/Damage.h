#pragma once

#include <string>
#include <string_view>

#include "Drawing.h"
#include "Random.h"
#include "Subject.h"

namespace compare {

/// The text with one thing wrong: a token taken out, doubled, swapped or replaced, white space
/// taken out or put in, a character changed, or the end cut off.
std::string damaged(std::string_view text, const std::vector<Token>& tokens, Drawing& drawing,
                    Random& random);

/// The text with something behind it that begins like a continuation.
std::string withTail(std::string_view text, Drawing& drawing, Random& random);

}  // namespace compare
