#pragma once

#include <cstddef>

/// Replaces operator new in the program and in every library that it loads. It counts allocations
/// and fails on demand.
namespace FailingNew {

/// How many allocations there were since the last call of failAt.
std::size_t allocations();

/// How many objects are allocated and not yet freed.
std::ptrdiff_t live();

/// Lets only the n-th allocation from now on fail. If n is 0, none fails.
void failAt(std::size_t n);

}  // namespace FailingNew
