#include "platform/StackBounds.h"

#if defined(_WIN32)
#include <windows.h>
#else
#include <pthread.h>
#include <signal.h>  // NOLINT(modernize-deprecated-headers): POSIX has more in it
#include <sys/auxv.h>
#include <sys/resource.h>
#include <unistd.h>
#endif

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace vorn {

namespace {

struct StackBounds {
  std::uintptr_t end = 0;  // the lowest address
  std::uintptr_t top = 0;  // one past the highest

  [[nodiscard]] bool hold(std::uintptr_t position) const {
    return end <= position && position < top;
  }
};

// The main thread's stack without a limit seems to reach down to the next mapping, but the kernel
// stops it before that.
constexpr std::uintptr_t largestSize = std::uintptr_t{64} * 1024 * 1024;

#if defined(_WIN32)

// The bytes that the host has reserved for handling a stack overflow, as runtimes of other
// languages do. Called with 0, the function of Windows only tells them.
std::uintptr_t setApart() {
  ULONG bytes = 0;
  return SetThreadStackGuarantee(&bytes) != 0 ? bytes : 0;
}

// Windows keeps these bounds for each fibre.
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

// For the main thread the C library would open a file, the memory map of the process. So the stack
// is measured here: the kernel writes the path of the program at its top, below one last word, and
// lets it grow up to a limit that may change at any time.
std::uintptr_t mainStackTop() {
  // NOLINTNEXTLINE(performance-no-int-to-ptr): the kernel hands addresses over as numbers.
  const auto* const path = reinterpret_cast<const char*>(getauxval(AT_EXECFN));
  if (path == nullptr) {
    return 0;
  }
  const auto page = static_cast<std::uintptr_t>(sysconf(_SC_PAGESIZE));
  const auto end = reinterpret_cast<std::uintptr_t>(path) + std::string_view(path).size() + 1;
  return (end + sizeof(void*) + page - 1) / page * page;
}

// The stack ends at `position` if the limit has been lowered to less than what is used.
StackBounds mainBounds(std::uintptr_t position) {
  static const std::uintptr_t top = mainStackTop();
  rlimit limit{};
  if (position >= top || top - position > largestSize || getrlimit(RLIMIT_STACK, &limit) != 0) {
    return {};
  }
  return {limit.rlim_cur < top ? std::min(top - limit.rlim_cur, position) : 0, top};
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

// A signal handler may run on a stack of its own, even one inside the thread's stack.
StackBounds signalStackBounds() {
  stack_t stack{};
  if (sigaltstack(nullptr, &stack) != 0 || (stack.ss_flags & SS_ONSTACK) == 0) {
    return {};
  }
  return boundsFrom(stack.ss_sp, stack.ss_size);
}

StackBounds currentBounds(std::uintptr_t position) {
  if (const StackBounds signals = signalStackBounds(); signals.hold(position)) {
    return signals;
  }
  if (const StackBounds main = mainBounds(position); main.hold(position)) {
    return main;
  }
  // The bounds are kept, since asking for them allocates. The initial-exec model allocates nothing;
  // the general model does at first use, and ends the process if that fails.
  [[gnu::tls_model("initial-exec")]] static thread_local StackBounds own;
  if (own.top == 0 && gettid() != getpid()) {
    own = threadBounds();
  }
  return own;
}

#endif

}  // namespace

std::uintptr_t stackEnd(std::uintptr_t position) {
  // Assumed to be left of a stack that the platform does not know.
  constexpr std::uintptr_t assumedSize = std::uintptr_t{48} * 1024;
  const StackBounds bounds = currentBounds(position);
  if (!bounds.hold(position)) {
    return position - assumedSize;
  }
  return std::max(bounds.end, position - std::min(position, largestSize));
}

}  // namespace vorn
