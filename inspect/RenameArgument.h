#pragma once

#include <string>
#include <string_view>
#include <utility>

namespace inspect {

/// Old and new name of an argument `old=new`. The old name may stand between back quotes, and hold
/// '=' there. Throws UsageError.
std::pair<std::string, std::string> parseRenameArgument(std::string_view argument);

}  // namespace inspect
