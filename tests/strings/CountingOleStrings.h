#pragma once

#include <cstddef>

/// Allocates the BSTRs of the program in place of strings/OleStrings.cpp. It counts them and
/// fails on demand.
namespace CountingOleStrings {

/// How many BSTRs are allocated and not yet freed.
std::size_t live();

/// How many BSTRs have been allocated so far.
std::size_t allocated();

/// How many times a pointer was freed that is neither a live BSTR nor null.
std::size_t wronglyFreed();

/// While it lives, no BSTR can be allocated.
class Exhausted {
 public:
  Exhausted();
  Exhausted(const Exhausted&) = delete;
  Exhausted& operator=(const Exhausted&) = delete;
  Exhausted(Exhausted&&) = delete;
  Exhausted& operator=(Exhausted&&) = delete;
  ~Exhausted();
};

}  // namespace CountingOleStrings
