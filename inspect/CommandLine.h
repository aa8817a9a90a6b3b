#pragma once

#include <string>
#include <vector>

namespace inspect {

/// Runs the program with these arguments, its own name first, and returns its exit status: 0, or 1
/// if the text could not be analysed. Throws UsageError.
int runCommandLine(const std::vector<std::string>& arguments);

}  // namespace inspect
