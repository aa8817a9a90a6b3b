#pragma once

#include <string>

#include "Drawing.h"
#include "Random.h"
#include "vorn/vorn.h"

namespace compare {

/// A few pieces side by side that the lexer could cut at the wrong place.
std::string drawLexerText(Drawing& drawing, Random& random);

/// UTF-16 with an unpaired surrogate in it.
vorn::WideString drawIllFormed(Drawing& drawing, Random& random);

}  // namespace compare
