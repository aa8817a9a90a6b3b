#include "Arguments.h"

namespace inspect {

// Whether they are UTF-8 indeed is seen where they are used.
std::vector<std::string> argumentsInUtf8(int argc, const char* const* argv) {
  return {argv, argv + argc};  // NOLINT(cppcoreguidelines-pro-bounds-pointer-arithmetic)
}

}  // namespace inspect
