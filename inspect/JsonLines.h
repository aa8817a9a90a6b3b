#pragma once

#include "Command.h"

namespace inspect {

/// Answers each line of standard input by a line on standard output, in order and at once, so that
/// the program can serve another one as a co-process.
void answerJsonLines(const Command& command);

}  // namespace inspect
