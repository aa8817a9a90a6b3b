#pragma once

#include <stdexcept>

namespace vorn {

/// A refusal because of nesting. Its type tells it from other refusals by a std::length_error.
class TooDeep : public std::length_error {
 public:
  using std::length_error::length_error;
};

/// Ends a call whose text nests too deeply for the stack. Both parsers end it alike.
[[noreturn]] inline void refuseAsTooDeep() {
  throw TooDeep("the openCypher text nests too deeply for the stack");
}

}  // namespace vorn
