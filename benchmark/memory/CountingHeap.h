#pragma once

#include <cstddef>

/// What operator new has given out in this process, the library under test included.
struct Heap {
  std::size_t allocations;
  std::size_t bytes;
  std::size_t live;
  std::size_t peak;
};

Heap heap();

/// Begins a new peak at what is live now.
void resetPeak();
