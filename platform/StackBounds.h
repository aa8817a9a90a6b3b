#pragma once

#include <cstdint>

#if defined(_MSC_VER)
#include <intrin.h>
#endif

namespace vorn {

/// Where the current stack frame stands. Stacks grow towards lower addresses on all our platforms.
// NOLINTBEGIN(cppcoreguidelines-pro-type-reinterpret-cast): an address is asked for.
inline std::uintptr_t stackPosition() {
#if defined(_MSC_VER)
  return reinterpret_cast<std::uintptr_t>(_AddressOfReturnAddress());
#elif defined(_WIN32)
  // Where __builtin_frame_address is inlined, GCC tells Windows wrong places of the vector
  // registers that the function has saved, and an exception leaves the caller's own in disorder.
  std::uintptr_t position;
  asm volatile("movq %%rsp, %0" : "=r"(position));
  return position;
#else
  return reinterpret_cast<std::uintptr_t>(__builtin_frame_address(0));
#endif
}
// NOLINTEND(cppcoreguidelines-pro-type-reinterpret-cast)

/// The lowest address that the stack around `position`, a position on the calling thread's current
/// stack, may grow to. If the platform cannot tell, which is so on the stack of a coroutine, an
/// address that every sensible stack reaches.
std::uintptr_t stackEnd(std::uintptr_t position);

}  // namespace vorn
