#pragma once

#include <stdexcept>

namespace vorn {

/// Ends a call whose text nests too deeply for the stack, whichever parser finds that out.
[[noreturn]] inline void refuseAsTooDeep() {
  throw std::length_error("the openCypher text nests too deeply for the stack");
}

}  // namespace vorn
