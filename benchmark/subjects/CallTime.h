#pragma once

#include <cstddef>
#include <ctime>
#include <new>

#include "Subject.h"

/// The processor time of the calling thread, in seconds. Unlike the time of day it does not count
/// the work of other programs.
inline double threadSeconds() {
  timespec now{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
  return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

/// Joins the small blocks that the call before has freed. Otherwise the next large allocation would
/// do that, and one subject would pay for another one.
inline void tidyHeap() {
  constexpr std::size_t large = std::size_t{64} * 1024;
  ::operator delete(::operator new(large));
}

/// The processor time of one call, in seconds.
inline double secondsOf(const Subject& subject, Subject::Function function, const Text& text) {
  tidyHeap();
  const double start = threadSeconds();
  subject.call(function, text);
  return threadSeconds() - start;
}
