#pragma once

#include <string_view>

#include "robustness/LoadedLibrary.h"

/// Has the library call `replacement` for a function of this mangled name that it imports.
/// Throws std::runtime_error if it imports none.
void replaceImport(const LoadedLibrary& library, std::string_view mangledName, void* replacement);
