#pragma once

#include <stdexcept>

namespace inspect {

/// The program was called in a way that leaves nothing to analyse. what() says what to do.
class UsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace inspect
