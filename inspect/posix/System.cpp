#include "System.h"

#include <unistd.h>

#include <ios>

namespace inspect {

// The users of the arguments check that they are UTF-8.
std::vector<std::string> argumentsInUtf8(int argc, const char* const* argv) {
  return {argv, argv + argc};  // NOLINT(cppcoreguidelines-pro-bounds-pointer-arithmetic)
}

class StandardStreams::Consoles {};

StandardStreams::StandardStreams() {
  // Without it the standard library's own buffers would hide that a read failed.
  std::ios::sync_with_stdio(false);
}

StandardStreams::~StandardStreams() = default;

bool outputIsWatched() { return isatty(STDOUT_FILENO) != 0; }

bool errorsAreWatched() { return isatty(STDERR_FILENO) != 0; }

}  // namespace inspect
