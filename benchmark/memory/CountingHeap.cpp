#include "CountingHeap.h"

#include <malloc.h>

#include <algorithm>
#include <cstdlib>
#include <new>

namespace {

Heap counted{};

}  // namespace

Heap heap() { return counted; }

void resetPeak() { counted.peak = counted.live; }

// Sizes are those that malloc really takes, which is more than what is asked for. The program has
// one thread, so plain numbers suffice. The other forms of new and delete call these two.
void* operator new(std::size_t size) {
  void* block = std::malloc(size);  // NOLINT(cppcoreguidelines-no-malloc)
  if (block == nullptr) {
    throw std::bad_alloc();
  }
  const std::size_t usable = malloc_usable_size(block);
  ++counted.allocations;
  counted.bytes += usable;
  counted.live += usable;
  counted.peak = std::max(counted.peak, counted.live);
  return block;
}

void operator delete(void* block) noexcept {
  counted.live -= malloc_usable_size(block);
  std::free(block);  // NOLINT(cppcoreguidelines-no-malloc)
}

void operator delete(void* block, std::size_t /*size*/) noexcept { operator delete(block); }
