#pragma once

#include <cstddef>
#include <istream>
#include <string>

#include "Command.h"

namespace inspect {

/// Answers each line of `in` by a line on standard output, in order and at once, so that the
/// program can serve another one as a co-process. Tells on standard error how many were refused,
/// if any, and returns their number. Throws UsageError if `in`, which `name` names, cannot be read.
std::size_t answerJsonLines(std::istream& in, const std::string& name, const Command& command);

}  // namespace inspect
