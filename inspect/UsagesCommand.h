#pragma once

#include "Command.h"

namespace inspect {

/// Which variables a property filter uses, and what it reads from each.
extern const Command usagesCommand;

}  // namespace inspect
