#pragma once

namespace inspect {

/// Runs the program and returns its exit status: 0, or 1 if the text could not be analysed. Throws
/// UsageError.
int runCommandLine(int argc, const char* const* argv);

}  // namespace inspect
