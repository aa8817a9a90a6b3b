#pragma once

#include <string>
#include <vector>

#include "Request.h"

namespace inspect {

/// The object "renames" of a request, made of arguments `old=new`. An old name may stand between
/// back quotes, and hold '=' there. Throws UsageError.
Json renamesFrom(const std::vector<std::string>& arguments);

}  // namespace inspect
