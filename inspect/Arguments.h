#pragma once

#include <string>
#include <vector>

namespace inspect {

/// The arguments in UTF-8, the name of the program first. Throws UsageError when the system gave
/// them in another encoding and one cannot be converted.
std::vector<std::string> argumentsInUtf8(int argc, const char* const* argv);

}  // namespace inspect
