#pragma once

#include <cstdint>
#include <type_traits>

#include "String.h"

/// An array of pointers to Strings.
///
///     String* names[] = {&carol, &alice, &bob};
///     StringArray array(names, 3);
///     array.Sort();  // names is now {&alice, &bob, &carol}
///
/// The object is a pointer to the first element, followed by the number of elements as a signed
/// 32-bit number. It owns neither the array nor the Strings: both belong to the caller and must
/// outlive the object. No element may be null.
class StringArray {
 public:
  /// Compares two elements. Each argument points to an element, which is itself a pointer to a
  /// String: `**static_cast<const String* const*>(left)`. The result is below, equal to or above 0
  /// as the left String comes before, with or after the right one. A comparison must not throw.
  using Comparison = int (*)(const void* left, const void* right);

  /// The `size` elements that begin at `first`, which may be null when `size` is 0. Core library.
  VORN_API StringArray(String** first, std::int32_t size) noexcept;

  /// The number of elements.
  [[nodiscard]] VORN_API int GetSize() const noexcept;

  /// Sorts the pointers. The Strings stay where they are. Elements that compare equal end up in any
  /// order. The default comparison compares UTF-16 code units up to the first zero, so upper case
  /// comes before lower case.
  VORN_API void Sort(Comparison compare = Compare);

 private:
  VORN_API static int Compare(const void* left, const void* right);

  String** elements;
  std::int32_t count;
};

static_assert(std::is_standard_layout_v<StringArray> && sizeof(StringArray) == 2 * sizeof(void*),
              "hosts rely on a StringArray being a pointer and a 32-bit count");
