#pragma once

#include <array>
#include <cstddef>
#include <new>

namespace vorn {

/// The one object of its type, made at first use and never destroyed: other threads and exit
/// handlers of the host may still make calls while the process ends. Takes no memory from the heap.
template <typename Type>
Type& neverDestroyed() {
  alignas(Type) static std::array<std::byte, sizeof(Type)> storage;
  // NOLINTNEXTLINE(cppcoreguidelines-avoid-non-const-global-variables): the pointer is set once.
  static auto* const object = ::new (storage.data()) Type;
  return *object;
}

}  // namespace vorn
