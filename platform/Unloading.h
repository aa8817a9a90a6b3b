#pragma once

namespace vorn {

/// Has `action` run when the library is unloaded from a process that goes on. The action does not
/// run when the process ends: other threads may still be inside the library then.
void runWhenUnloaded(void (*action)());

}  // namespace vorn
