#pragma once

#include "Command.h"

namespace inspect {

/// What a property filter reads like after some of its variables are renamed.
extern const Command renameCommand;

}  // namespace inspect
