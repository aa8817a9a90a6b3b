#pragma once

#include <stdexcept>

namespace vorn {

/// What tells this refusal from others by a std::length_error.
class TooDeep : public std::length_error {
 public:
  using std::length_error::length_error;
};

/// Ends a call whose text nests too deeply for the stack, whichever parser finds that out.
[[noreturn]] inline void refuseAsTooDeep() {
  throw TooDeep("the openCypher text nests too deeply for the stack");
}

}  // namespace vorn
