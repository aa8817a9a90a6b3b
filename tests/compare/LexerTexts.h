#pragma once

#include <string>

#include "Drawing.h"
#include "Random.h"
#include "vorn/vorn.h"

namespace compare {

/// Some pieces side by side, between which the lexer might divide the text wrongly.
std::string drawLexerText(Drawing& drawing, Random& random);

/// UTF-16 with an unpaired surrogate in it.
vorn::WideString drawIllFormed(Drawing& drawing, Random& random);

}  // namespace compare
