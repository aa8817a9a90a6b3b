#include "FailingNew.h"

#include <atomic>
#include <cstdlib>
#include <new>

namespace {

std::atomic<std::size_t> count{0};
std::atomic<std::size_t> failing{0};
std::atomic<std::ptrdiff_t> liveObjects{0};

void* allocate(std::size_t size) noexcept {
  if (++count == failing) {
    return nullptr;
  }
  void* const memory = std::malloc(size == 0 ? 1 : size);  // NOLINT(cppcoreguidelines-no-malloc)
  liveObjects += memory == nullptr ? 0 : 1;
  return memory;
}

void* allocateOrThrow(std::size_t size) {
  void* const memory = allocate(size);
  if (memory == nullptr) {
    throw std::bad_alloc();
  }
  return memory;
}

void release(void* memory) noexcept {
  liveObjects -= memory == nullptr ? 0 : 1;
  std::free(memory);  // NOLINT(cppcoreguidelines-no-malloc)
}

}  // namespace

namespace FailingNew {

std::size_t allocations() { return count; }
std::ptrdiff_t live() { return liveObjects; }

void failAt(std::size_t n) {
  count = 0;
  failing = n;
}

}  // namespace FailingNew

// The array forms call these. The forms with a stricter alignment do not, but nothing uses them.
void* operator new(std::size_t size) { return allocateOrThrow(size); }
void* operator new[](std::size_t size) { return allocateOrThrow(size); }
void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept {
  return allocate(size);
}
void* operator new[](std::size_t size, const std::nothrow_t& /*tag*/) noexcept {
  return allocate(size);
}
void operator delete(void* memory) noexcept { release(memory); }
void operator delete[](void* memory) noexcept { release(memory); }
void operator delete(void* memory, std::size_t /*size*/) noexcept { release(memory); }
void operator delete[](void* memory, std::size_t /*size*/) noexcept { release(memory); }
void operator delete(void* memory, const std::nothrow_t& /*tag*/) noexcept { release(memory); }
void operator delete[](void* memory, const std::nothrow_t& /*tag*/) noexcept { release(memory); }
