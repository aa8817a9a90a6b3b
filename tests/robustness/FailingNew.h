#pragma once

#include <cstddef>

/// Takes the place of operator new in the program and in every library that it loads: counts what
/// is allocated and fails on demand.
namespace FailingNew {

/// How many allocations there were since the last call of failAt.
std::size_t allocations();

/// How many objects are allocated and not yet freed.
std::ptrdiff_t live();

/// Lets the n-th allocation from now on fail, and no other. None, if n is 0.
void failAt(std::size_t n);

}  // namespace FailingNew
