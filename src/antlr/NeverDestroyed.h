#pragma once

#include <array>
#include <cstddef>
#include <new>

namespace vorn {

/// The one object of its type, made at first use and never destroyed: at the end of the process
/// other threads, and what the host does last, may still make calls. Takes no memory from the heap.
template <typename Type>
Type& neverDestroyed() {
  alignas(Type) static std::array<std::byte, sizeof(Type)> storage;
  // NOLINTNEXTLINE(cppcoreguidelines-avoid-non-const-global-variables): set once
  static auto* const object = ::new (storage.data()) Type;
  return *object;
}

}  // namespace vorn
