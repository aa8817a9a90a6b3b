#pragma once

#include <string_view>

namespace inspect {

/// Writes at once, since another program may be waiting for it. Throws UsageError.
void writeOut(std::string_view text);

}  // namespace inspect
