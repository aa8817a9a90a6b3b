#include "StandardStreams.h"

#include <unistd.h>

#include <ios>

namespace inspect {

class StandardStreams::Consoles {};

StandardStreams::StandardStreams() {
  // Without it the standard library's own buffers would hide that a read failed.
  std::ios::sync_with_stdio(false);
}

StandardStreams::~StandardStreams() = default;

bool outputIsWatched() { return isatty(STDOUT_FILENO) != 0; }

bool errorsAreWatched() { return isatty(STDERR_FILENO) != 0; }

}  // namespace inspect
