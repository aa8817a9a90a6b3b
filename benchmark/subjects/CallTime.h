#pragma once

#include <ctime>

#include "Subject.h"

/// The processor time that this thread has spent, in seconds. Unlike the time of day it does not
/// count what other programs take from a shared machine.
inline double threadSeconds() {
  timespec now{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
  return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

/// The processor time of one call, in seconds.
inline double secondsOf(const Subject& subject, Subject::Function function, const Text& text) {
  const double start = threadSeconds();
  subject.call(function, text);
  return threadSeconds() - start;
}
