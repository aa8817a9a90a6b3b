#pragma once

#include <cstddef>
#include <ctime>
#include <new>

#include "Subject.h"

/// The processor time that this thread has spent, in seconds. Unlike the time of day it does not
/// count what other programs take from a shared machine.
inline double threadSeconds() {
  timespec now{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
  return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

/// Joins the small blocks that the call before has given back. The next large one would do it
/// otherwise, so that one subject would pay for what another one has left.
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
