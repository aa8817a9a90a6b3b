#pragma once

#include <cstdint>

#if defined(_MSC_VER)
#include <intrin.h>
#endif

namespace vorn {

/// The address of the current stack frame. Stacks grow towards lower addresses on all our
/// platforms.
// NOLINTBEGIN(cppcoreguidelines-pro-type-reinterpret-cast): an address is asked for.
inline std::uintptr_t stackPosition() {
#if defined(_MSC_VER)
  return reinterpret_cast<std::uintptr_t>(_AddressOfReturnAddress());
#elif defined(_WIN32)
  // Where __builtin_frame_address is inlined, GCC tells Windows wrong places of the vector
  // registers that the function has saved. An exception would then restore wrong values for the
  // caller.
  std::uintptr_t position;
  asm volatile("movq %%rsp, %0" : "=r"(position));
  return position;
#else
  return reinterpret_cast<std::uintptr_t>(__builtin_frame_address(0));
#endif
}
// NOLINTEND(cppcoreguidelines-pro-type-reinterpret-cast)

/// The lowest address that the calling thread's current stack may grow to. `position` must be on
/// that stack. If the platform cannot tell, as for the stack of a coroutine, an address that every
/// sensible stack reaches.
std::uintptr_t stackEnd(std::uintptr_t position);

}  // namespace vorn
