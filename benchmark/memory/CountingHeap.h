#pragma once

#include <cstddef>

/// What operator new has given out in this process, including the library under test.
struct Heap {
  std::size_t allocations;
  std::size_t bytes;  // of all allocations
  std::size_t live;   // bytes that are not yet freed
  std::size_t peak;   // the most bytes that were live at the same time
};

Heap heap();

/// Sets the peak to the bytes that are live now.
void resetPeak();
