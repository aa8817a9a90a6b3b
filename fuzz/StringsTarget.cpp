// Runs any sequence of operations on String, BString and StringArray, and the same on standard
// types.

#include <algorithm>
#include <array>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "Input.h"
#include "Properties.h"
#include "vorn/strings/BString.h"
#include "vorn/strings/String.h"
#include "vorn/strings/StringArray.h"

namespace {

using vorn::WideString;
using WideView = std::basic_string_view<vorn::WideChar>;

constexpr std::size_t objectCount = 3;
constexpr std::size_t longestText = 1000;
constexpr int notComparable = std::numeric_limits<std::int32_t>::max();

class Bytes {
 public:
  explicit Bytes(std::string_view all) : left(all) {}

  [[nodiscard]] bool empty() const { return left.empty(); }

  std::size_t nextBelow(std::size_t bound) {
    if (left.empty()) {
      return 0;
    }
    const auto byte = static_cast<unsigned char>(left.front());
    left.remove_prefix(1);
    return byte % bound;
  }

  // A few UTF-16 code units; ASCII letters, zeros, halves of characters.
  WideString nextText() {
    constexpr std::array<vorn::WideChar, 8> units = {'a', 'b', 'A', 'Z', 0, 0xD83D, 0xDE00, 0x416};
    WideString text(nextBelow(8), 0);
    std::generate(text.begin(), text.end(), [&] { return units[nextBelow(units.size())]; });
    return text;
  }

  WideString nextTextWithoutZeros() {
    WideString text = nextText();
    text.erase(std::remove(text.begin(), text.end(), 0), text.end());
    return text;
  }

 private:
  std::string_view left;
};

int sign(int number) { return static_cast<int>(number > 0) - static_cast<int>(number < 0); }

// The part of a text that comparisons read.
WideString upToZero(const WideString& text) {
  return text.c_str();  // NOLINT(readability-redundant-string-cstr): that is where it ends
}

// Strings and their expected texts. No text is expected of a String whose buffer was taken away.
class Strings {
 public:
  void step(Bytes& bytes) {
    const std::size_t i = bytes.nextBelow(objectCount);
    const std::size_t j = bytes.nextBelow(objectCount);
    switch (bytes.nextBelow(7)) {
      case 0:
        objects[i] = std::move(objects[j]);
        std::swap(expected[i], expected[j]);
        break;
      case 1: {
        String taker(std::move(objects[i]));
        const std::optional<WideString> taken = std::exchange(expected[i], std::nullopt);
        objects[j] = std::move(taker);
        expected[j] = taken;
        break;
      }
      case 2:
        if (expected[i]) {
          append(i, bytes.nextTextWithoutZeros());
        }
        break;
      case 3:
        objects[i].Empty();
        expected[i] = WideString();
        break;
      case 4:
        if (expected[i]) {
          appendToItself(i, bytes);
        }
        break;
      case 5: {
        const WideString text = bytes.nextTextWithoutZeros();
        objects[i] = String(text.c_str());
        expected[i] = text;
        break;
      }
      default:
        compare(i, j);
    }
  }

  void check() const {
    for (std::size_t i = 0; i < objectCount; ++i) {
      if (!expected[i]) {
        require(static_cast<const vorn::WideChar*>(objects[i]) == nullptr,
                "a taken buffer is gone");
        continue;
      }
      const WideString& text = *expected[i];
      require(static_cast<WideView>(objects[i]) == text, "a String holds what was put in");
      require(objects[i].GetLength() == text.size(), "the length counts characters");
      require(objects[i].IsEmpty() == text.empty(), "an empty String is empty");
      require(objects[i].GetAt(static_cast<int>(text.size())) == 0, "a zero ends a String");
      require(objects[i].GetEucByteLength() == objects[i].GetByteLength(),
              "no byte length doubles outside a Chinese locale");
    }
  }

  void checkSorting() {
    std::array<String*, objectCount> pointers{};
    std::int32_t count = 0;
    for (std::size_t i = 0; i < objectCount; ++i) {
      if (expected[i]) {
        pointers[static_cast<std::size_t>(count++)] = &objects[i];
      }
    }
    // An iterator, which only some libraries make a pointer.
    // NOLINTNEXTLINE(readability-qualified-auto)
    const auto end = pointers.begin() + count;
    std::array<String*, objectCount> before = pointers;
    StringArray array(pointers.data(), count);
    array.Sort();
    require(array.GetSize() == count, "sorting keeps the size");
    require(std::is_permutation(pointers.begin(), end, before.begin()),
            "sorting keeps all elements");
    require(std::is_sorted(
                pointers.begin(), end,
                [](const String* left, const String* right) { return left->Compare(*right) < 0; }),
            "sorting sorts");
  }

  [[nodiscard]] const String* at(std::size_t i) const {
    return expected[i] ? &objects[i] : nullptr;
  }
  [[nodiscard]] const WideString& textAt(std::size_t i) const { return *expected[i]; }

 private:
  void append(std::size_t i, const WideString& text) {
    if (expected[i]->size() < longestText) {
      objects[i].ConcatImpl(text.c_str(), static_cast<unsigned long>(text.size()));
      *expected[i] += text;
    }
  }

  void appendToItself(std::size_t i, Bytes& bytes) {
    if (expected[i]->size() >= longestText) {
      return;
    }
    const std::size_t from = bytes.nextBelow(expected[i]->size() + 1);
    const vorn::WideChar* const tail = static_cast<const vorn::WideChar*>(objects[i]) + from;
    const WideString tailText = expected[i]->substr(from);
    objects[i].ConcatImpl(tail, static_cast<unsigned long>(tailText.size()));
    *expected[i] += tailText;
  }

  void compare(std::size_t i, std::size_t j) const {
    require(objects[i].CompareNoCase(nullptr) == notComparable, "null compares with nothing");
    if (!expected[i] || !expected[j]) {
      require(objects[i].CompareNoCase(objects[j]) == notComparable, "null compares with nothing");
      return;
    }
    require(sign(objects[i].Compare(objects[j])) ==
                sign(upToZero(*expected[i]).compare(upToZero(*expected[j]))),
            "Strings compare by code units");
    require(objects[i].Compare(objects[j]) != 0 || objects[i].CompareNoCase(objects[j]) == 0,
            "equal Strings are equal without case too");
  }

  std::array<String, objectCount> objects;
  std::array<std::optional<WideString>, objectCount> expected = {WideString(), WideString(),
                                                                 WideString()};
};

// BStrings and their expected texts. No text is expected of null.
class BStrings {
 public:
  void step(Bytes& bytes, const Strings& strings) {
    const std::size_t i = bytes.nextBelow(objectCount);
    const std::size_t j = bytes.nextBelow(objectCount);
    switch (bytes.nextBelow(9)) {
      case 0:
        objects[i] = std::move(objects[j]);
        moveText(i, j);
        break;
      case 1:
        objects[i].Attach(objects[j]);
        moveText(i, j);
        break;
      case 2:
        objects[i].Attach(objects[j].Detach());
        moveText(i, j);
        break;
      case 3: {
        const WideString text = bytes.nextText();
        append(i, text,
               [&] { return objects[i].Append(text.data(), static_cast<int>(text.size())); });
        break;
      }
      case 4:
        append(i, expected[j].value_or(WideString()),
               [&] { return objects[i].Append(objects[j]); });
        break;
      case 5: {
        const WideString text = bytes.nextTextWithoutZeros();
        append(i, text, [&] { return objects[i].Append(text.c_str()); });
        break;
      }
      case 6:
        takeFrom(i, j, strings);
        break;
      case 7:
        *&objects[i] = nullptr;
        expected[i] = std::nullopt;
        break;
      default:
        compare(i, j);
    }
  }

  void check() const {
    for (std::size_t i = 0; i < objectCount; ++i) {
      require((objects[i] == nullptr) == !expected[i], "null stays null");
      const WideString text = expected[i].value_or(WideString());
      require(static_cast<WideView>(objects[i]) == text, "a BString holds what was put in");
      require(objects[i].GetLength() == text.size(), "the length counts characters");
      require(objects[i].IsEmpty() == text.empty(), "an empty BString is empty");
    }
  }

 private:
  void moveText(std::size_t to, std::size_t from) {
    expected[to] = std::exchange(expected[from], std::nullopt);
  }

  template <typename Call>
  void append(std::size_t i, const WideString& text, const Call& call) {
    if (expected[i].value_or(WideString()).size() >= longestText) {
      return;
    }
    require(call() == (text.empty() ? 1 : 0), "appending tells whether it did anything");
    if (!text.empty()) {
      expected[i] = expected[i].value_or(WideString()) + text;
    }
  }

  void takeFrom(std::size_t i, std::size_t j, const Strings& strings) {
    if (const String* source = strings.at(j)) {
      objects[i] = BString(*source);
      expected[i] = strings.textAt(j);
    }
  }

  void compare(std::size_t i, std::size_t j) const {
    const std::optional<WideString>& left = expected[i];
    const std::optional<WideString>& right = expected[j];
    const bool both = left && right;
    const bool equal = both ? upToZero(*left) == upToZero(*right) : !left && !right;
    const bool less = both ? upToZero(*left) < upToZero(*right) : !left && right;
    require((objects[i] == objects[j]) == equal, "BStrings are equal by code units");
    require((objects[i] != objects[j]) == !equal, "unequal is the opposite of equal");
    require((objects[i] < objects[j]) == less, "BStrings are in the order of code units");
  }

  std::array<BString, objectCount> objects;
  std::array<std::optional<WideString>, objectCount> expected;
};

}  // namespace

// The input chooses the operations and their arguments.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Bytes bytes(bytesOf(data, size));
  Strings strings;
  BStrings bstrings;
  while (!bytes.empty()) {
    if (bytes.nextBelow(2) == 0) {
      strings.step(bytes);
    } else {
      bstrings.step(bytes, strings);
    }
    strings.check();
    bstrings.check();
  }
  strings.checkSorting();
  return 0;
}
