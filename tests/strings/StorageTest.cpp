// Tests that the storage of a String is released, and what happens if memory runs out.

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdlib>
#include <new>
#include <utility>

#include "Strings.h"

namespace {

bool exhausted = false;
std::ptrdiff_t liveBlocks = 0;

// Makes `new` throw while the object lives.
class Exhausted {
 public:
  Exhausted() { exhausted = true; }
  Exhausted(const Exhausted&) = delete;
  Exhausted& operator=(const Exhausted&) = delete;
  Exhausted(Exhausted&&) = delete;
  Exhausted& operator=(Exhausted&&) = delete;
  ~Exhausted() { exhausted = false; }
};

// Whether the action throws std::bad_alloc while there is no memory.
template <typename Action>
bool runsOutOfMemory(Action action) {
  const Exhausted noMemory;
  try {
    action();
  } catch (const std::bad_alloc&) {
    return true;
  }
  return false;
}

}  // namespace

void* operator new(std::size_t size) {
  void* const block = exhausted ? nullptr : std::malloc(size);
  if (block == nullptr) {
    throw std::bad_alloc();
  }
  ++liveBlocks;
  return block;
}

void operator delete(void* block) noexcept {
  liveBlocks -= block == nullptr ? 0 : 1;
  std::free(block);
}

void operator delete(void* block, std::size_t /*size*/) noexcept { operator delete(block); }

TEST(AString, ReleasesEveryBufferThatItHad) {
  const vorn::WideString more = wide("some more characters");
  const std::ptrdiff_t before = liveBlocks;
  {
    String text;
    EXPECT_EQ(liveBlocks, before + 1);
    for (int i = 0; i < 100; ++i) {
      text.ConcatImpl(more.c_str(), static_cast<unsigned long>(more.size()));
    }
    text.ConcatImpl(text, text.GetLength());
    String other(std::move(text));
    text = std::move(other);  // NOLINT(bugprone-use-after-move)
    text.Empty();
    text.LoadStringW(1, nullptr);
    EXPECT_EQ(liveBlocks, before + 1);
  }
  EXPECT_EQ(liveBlocks, before);
}

TEST(AStringWithoutMemory, CannotBeMade) {
  const vorn::WideString text = wide("abc");
  EXPECT_TRUE(runsOutOfMemory([] { const String empty; }));
  EXPECT_TRUE(runsOutOfMemory([&] { const String copy(text.c_str()); }));
  EXPECT_TRUE(runsOutOfMemory([] { const String resource(1, nullptr); }));
}

TEST(AStringWithoutMemory, StaysAsItIsWhenItCannotGrow) {
  String text = stringOf("abc");
  const vorn::WideString more = wide("def");
  const vorn::WideChar* const buffer = text;
  EXPECT_TRUE(runsOutOfMemory([&] { text.ConcatImpl(more.c_str(), 3); }));
  EXPECT_EQ(pointerIn(text), buffer);
  EXPECT_EQ(utf8Of(text), "abc");
}

TEST(AStringWithoutMemory, CanBeMovedAndEmptied) {
  String text = stringOf("abc");
  EXPECT_FALSE(runsOutOfMemory([&] {
    String taken(std::move(text));
    text = std::move(taken);  // NOLINT(bugprone-use-after-move)
    text.Empty();
  }));
  EXPECT_TRUE(text.IsEmpty());
}
