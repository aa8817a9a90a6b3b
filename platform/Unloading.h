#pragma once

namespace vorn {

/// Has `action` run when the library is unloaded from a process that goes on. At the end of the
/// process it does not run: other threads may still be inside the library then. The first call
/// decides.
void runWhenUnloaded(void (*action)());

}  // namespace vorn
