#pragma once

#include "Command.h"

namespace inspect {

/// Which columns a query returns.
extern const Command columnsCommand;

}  // namespace inspect
