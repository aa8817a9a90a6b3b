#include "CountingOleStrings.h"

#include <algorithm>
#include <map>
#include <memory>

#include "strings/OleStrings.h"

namespace {

using vorn::WideChar;
using Characters = std::unique_ptr<WideChar[]>;

struct Block {
  Characters characters;
  std::size_t length = 0;
};

struct Books {
  std::map<WideChar*, Block> live;
  std::size_t allocated = 0;
  std::size_t wronglyFreed = 0;
  bool exhausted = false;
};

Books& books() {
  static Books theBooks;
  return theBooks;
}

}  // namespace

namespace vorn::platform {

// If real memory runs out, the test may end here.
WideChar* SysAllocStringLen(const WideChar* source, std::size_t length) noexcept {
  if (books().exhausted) {
    return nullptr;
  }
  // NOLINTNEXTLINE(bugprone-unhandled-exception-at-new)
  Characters characters(new WideChar[length + 1]);
  if (source != nullptr) {
    std::copy_n(source, length, characters.get());
  }
  characters[length] = 0;
  WideChar* const string = characters.get();
  books().live[string] = {std::move(characters), length};
  ++books().allocated;
  return string;
}

void SysFreeString(WideChar* string) noexcept {
  if (books().live.erase(string) == 0) {
    ++books().wronglyFreed;
  }
}

std::uint32_t SysStringLen(WideChar* string) noexcept {
  return string == nullptr ? 0 : static_cast<std::uint32_t>(books().live.at(string).length);
}

}  // namespace vorn::platform

namespace CountingOleStrings {

std::size_t live() { return books().live.size(); }
std::size_t allocated() { return books().allocated; }
std::size_t wronglyFreed() { return books().wronglyFreed; }

Exhausted::Exhausted() { books().exhausted = true; }
Exhausted::~Exhausted() { books().exhausted = false; }

}  // namespace CountingOleStrings
