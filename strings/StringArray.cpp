#include "vorn/strings/StringArray.h"

#include <cstddef>
#include <cstdlib>

int StringArray::GetSize() const noexcept {
  // Checked in a member, since the fields are private.
  static_assert(offsetof(StringArray, elements) == 0 &&
                offsetof(StringArray, count) == sizeof(String**) && sizeof count == 4);
  return count;
}

void StringArray::Sort(Comparison compare) {
  if (count > 0) {
    // NOLINTNEXTLINE(bugprone-sizeof-expression): the elements are pointers.
    std::qsort(elements, static_cast<std::size_t>(count), sizeof(String*), compare);
  }
}

int StringArray::Compare(const void* left, const void* right) {
  const String& leftText = **static_cast<const String* const*>(left);
  const String& rightText = **static_cast<const String* const*>(right);
  return leftText.Compare(rightText);
}
