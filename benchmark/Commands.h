#pragma once

#include <string>
#include <vector>

/// The arguments behind the name of a command. TEXTS is a file that corpus.py or shapes.py has
/// written. A SUBJECT is "bare" or the path of a shared library.
using Arguments = std::vector<std::string>;

// Each command prints what it measures and throws a std::exception if it cannot.

/// TEXTS SUBJECT... [--benchmark_...]: the time of each group of texts, then of all texts in one,
/// two and four threads. Later subjects are compared with the first one.
void measureTimes(const Arguments& arguments);

/// TEXTS SUBJECT...: the time of each text, as comma-separated values.
void measureGrowth(const Arguments& arguments);

/// SUBJECT: the microseconds of loading it, of its first call and of its second call.
void measureFirstCall(const Arguments& arguments);

/// TEXTS SUBJECT: runs under callgrind, which writes one dump for each call, named by the function
/// and the text.
void countInstructions(const Arguments& arguments);

/// LIBRARY MILLIONS: makes random calls on all functions and prints the memory of the process at
/// intervals. Once the static data of the runtime is built, it must stay flat.
void soak(const Arguments& arguments);

/// LIBRARY: processor time and peak memory of large texts at growing sizes, each in a process of
/// its own.
void measureLargeTexts(const Arguments& arguments);
