#pragma once

#include <functional>
#include <string>

#include "Command.h"

namespace inspect {

/// Why the command refuses a text, for people: the reason, the line with a caret under the place,
/// and what to do about it. `ask` asks the command's question of another text.
std::string failureReport(const Failure& failure, const std::string& text, const Command& command,
                          const std::function<Analysis(const std::string&)>& ask);

}  // namespace inspect
