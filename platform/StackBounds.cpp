#include "platform/StackBounds.h"

#if defined(_WIN32)
#include <windows.h>
#else
#include <pthread.h>
#include <signal.h>  // NOLINT(modernize-deprecated-headers): POSIX has more in it
#endif

#include <cstddef>

namespace vorn {

namespace {

struct StackBounds {
  std::uintptr_t end = 0;  // the lowest address
  std::uintptr_t top = 0;  // one past the highest

  [[nodiscard]] bool hold(std::uintptr_t position) const {
    return end <= position && position < top;
  }
};

#if defined(_WIN32)

// What the host has set apart for handling an overflow, as runtimes of other languages do. Asked
// for no bytes, the function leaves it as it is.
std::uintptr_t setApart() {
  ULONG bytes = 0;
  return SetThreadStackGuarantee(&bytes) != 0 ? bytes : 0;
}

// Windows switches all of this together with the fibre.
StackBounds currentBounds(std::uintptr_t /*position*/) {
  ULONG_PTR end = 0;
  ULONG_PTR top = 0;
  GetCurrentThreadStackLimits(&end, &top);
  return {end + setApart(), top};
}

#else

StackBounds boundsFrom(const void* end, std::size_t size) {
  const auto address = reinterpret_cast<std::uintptr_t>(end);
  return {address, address + size};
}

StackBounds threadBounds() {
  StackBounds bounds;
  pthread_attr_t attributes;
  if (pthread_getattr_np(pthread_self(), &attributes) == 0) {
    void* end = nullptr;
    std::size_t size = 0;
    if (pthread_attr_getstack(&attributes, &end, &size) == 0) {
      bounds = boundsFrom(end, size);
    }
    pthread_attr_destroy(&attributes);
  }
  return bounds;
}

// A signal handler may run on a stack of its own, which may lie within the thread's.
StackBounds signalStackBounds() {
  stack_t stack{};
  if (sigaltstack(nullptr, &stack) != 0 || (stack.ss_flags & SS_ONSTACK) == 0) {
    return {};
  }
  return boundsFrom(stack.ss_sp, stack.ss_size);
}

StackBounds currentBounds(std::uintptr_t position) {
  // Kept, since on the main thread the question makes the C library read the process's memory map.
  // The initial-exec model, since the general one allocates at first use and ends the process if
  // that fails.
  [[gnu::tls_model("initial-exec")]] static thread_local StackBounds own;
  if (own.top == 0) {
    own = threadBounds();
  }
  const StackBounds signals = signalStackBounds();
  return signals.hold(position) ? signals : own;
}

#endif

}  // namespace

std::uintptr_t stackEnd(std::uintptr_t position) {
  // What is left to assume of a stack that the platform knows nothing of.
  constexpr std::uintptr_t assumedSize = std::uintptr_t{64} * 1024;
  // A main thread without a limit seems to own all memory down to the next mapping, but the kernel
  // stops it short of that.
  constexpr std::uintptr_t largestSize = std::uintptr_t{64} * 1024 * 1024;
  const StackBounds bounds = currentBounds(position);
  if (!bounds.hold(position)) {
    return position - assumedSize;
  }
  return position - bounds.end > largestSize ? position - largestSize : bounds.end;
}

}  // namespace vorn
