// Tests that every BSTR is freed exactly once, and that objects stay as they are if memory runs
// out.

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <array>
#include <functional>
#include <optional>
#include <vector>

#include "CountingOleStrings.h"
#include "Strings.h"

namespace {

constexpr auto eOutOfMemory = static_cast<std::int32_t>(0x8007000E);

// Checks at the end of a test that all its BSTRs are freed, and none of them twice.
class OwningBstrs : public testing::Test {
 protected:
  void TearDown() override {
    EXPECT_EQ(CountingOleStrings::live(), 0U);
    EXPECT_EQ(CountingOleStrings::wronglyFreed(), 0U);
  }

  std::size_t allocatedHere() const { return CountingOleStrings::allocated() - allocatedBefore; }

 private:
  std::size_t allocatedBefore = CountingOleStrings::allocated();
};

class RunningOutOfMemory : public OwningBstrs {};

}  // namespace

TEST_F(OwningBstrs, FreesTheStringWithTheObject) {
  {
    const BString ofLength(2L);
    const BString ofString(stringOf("ab"));
    const BString ofNarrow("ab", 0);
    EXPECT_EQ(CountingOleStrings::live(), 3U);
  }
  EXPECT_EQ(CountingOleStrings::live(), 0U);
  EXPECT_EQ(allocatedHere(), 3U);
}

TEST_F(OwningBstrs, AllocatesAndFreesNothingForNull) {
  { const BString ofNull(nullptr, 0); }
  BString null;
  null.Attach(static_cast<BSTR>(nullptr));
  EXPECT_EQ(*&null, nullptr);
  EXPECT_EQ(allocatedHere(), 0U);
}

TEST_F(OwningBstrs, HandsTheStringOverByMoving) {
  BString source = bstringOf("ab");
  BString target(std::move(source));
  EXPECT_EQ(CountingOleStrings::live(), 1U);
  BString old = bstringOf("old");
  old = std::move(target);
  EXPECT_EQ(CountingOleStrings::live(), 1U);
  BString& same = old;
  old = std::move(same);
  EXPECT_EQ(utf8Of(old), "ab");
}

TEST_F(OwningBstrs, FreesTheStringBeforeTheAddressIsGivenOut) {
  BString text = bstringOf("old");
  BSTR* const place = &text;
  EXPECT_EQ(CountingOleStrings::live(), 0U);
  *place = stringOf("new").MakeBSTR();
  EXPECT_EQ(CountingOleStrings::live(), 1U);
}

TEST_F(OwningBstrs, FreesTheHeldStringWhenAnotherIsAttached) {
  BString text = bstringOf("old");
  text.Attach(stringOf("new").MakeBSTR());
  EXPECT_EQ(CountingOleStrings::live(), 1U);
  BString other = bstringOf("other");
  text.Attach(other);
  EXPECT_EQ(CountingOleStrings::live(), 1U);
  text.Attach(text);
  EXPECT_EQ(utf8Of(text), "other");
}

TEST_F(OwningBstrs, LeavesADetachedStringToTheCaller) {
  BSTR detached = nullptr;
  {
    BString text = bstringOf("ab");
    detached = text.Detach();
  }
  EXPECT_EQ(CountingOleStrings::live(), 1U);
  BString owner;
  owner.Attach(detached);
}

TEST_F(OwningBstrs, FreesTheOldStringAfterAppending) {
  BString text = bstringOf("ab");
  text.Append(text);
  text += text;
  EXPECT_EQ(utf8Of(text), "abababab");
  EXPECT_EQ(CountingOleStrings::live(), 1U);
}

TEST_F(OwningBstrs, FreesWhatItMakesOfNarrowTextToCompare) {
  const BString text(2L);
  static_cast<void>(text == "ab");
  static_cast<void>(text != "ab");
  static_cast<void>(text < "ab");
  EXPECT_EQ(allocatedHere(), 4U);
  EXPECT_EQ(CountingOleStrings::live(), 1U);
}

RC_GTEST_FIXTURE_PROP(OwningBstrs, KeepsTheBooksThroughAnySequence, ()) {
  std::array<BString, 3> objects;
  std::array<std::optional<std::string>, 3> expected;
  const auto place = rc::gen::inRange<std::size_t>(0, objects.size());
  const auto steps = *rc::gen::container<std::vector<int>>(rc::gen::inRange(0, 8));
  for (const int step : steps) {
    const std::size_t i = *place;
    const std::size_t j = *place;
    BString& object = objects[i];
    switch (step) {
      case 0:
        object = BString("made", 0);
        expected[i] = "made";
        break;
      case 1:
        object = std::move(objects[j]);
        if (i != j && (expected[i] || expected[j])) {
          expected[i] = std::exchange(expected[j], std::nullopt);
        }
        break;
      case 2:
        object.Attach(objects[j]);
        expected[i] = std::exchange(expected[j], std::nullopt);
        break;
      case 3:
        object.Attach(objects[j].Detach());
        expected[i] = std::exchange(expected[j], std::nullopt);
        break;
      case 4:
        *&object = stringOf("out").MakeBSTR();
        expected[i] = "out";
        break;
      case 5:
        object.Append(objects[j]);
        if (expected[j] && !expected[j]->empty()) {
          expected[i] = expected[i].value_or("") + *expected[j];
        }
        break;
      case 6:
        *&object = nullptr;
        expected[i] = std::nullopt;
        break;
      default:
        object = BString(0L);
        expected[i] = "";
    }
    std::size_t held = 0;
    for (std::size_t k = 0; k < objects.size(); ++k) {
      RC_ASSERT((objects[k] == nullptr) == !expected[k]);
      RC_ASSERT(utf8Of(objects[k]) == expected[k].value_or(""));
      held += expected[k] ? 1U : 0U;
    }
    RC_ASSERT(CountingOleStrings::live() == held);
  }
}

TEST_F(RunningOutOfMemory, LeavesANewObjectNull) {
  const String source = stringOf("ab");
  const CountingOleStrings::Exhausted exhausted;
  EXPECT_TRUE(BString(2L) == nullptr);
  EXPECT_TRUE(BString(source) == nullptr);
  EXPECT_TRUE(BString("ab", 0) == nullptr);
}

TEST_F(RunningOutOfMemory, IsReportedByAppendWhichChangesNothing) {
  BString text = bstringOf("ab");
  const BString other = bstringOf("cd");
  const vorn::WideChar* const held = pointerIn(text);
  const vorn::WideString more = wide("ef");
  const CountingOleStrings::Exhausted exhausted;
  EXPECT_EQ(text.Append(more.c_str(), 2), eOutOfMemory);
  EXPECT_EQ(text.Append(more.c_str()), eOutOfMemory);
  EXPECT_EQ(text.Append(other), eOutOfMemory);
  EXPECT_EQ(text.AppendBSTR(pointerIn(other)), eOutOfMemory);
  EXPECT_EQ(text.Append(text), eOutOfMemory);
  text += other;
  EXPECT_EQ(pointerIn(text), held);
  EXPECT_EQ(utf8Of(text), "ab");
  // An empty text is noticed before any memory is requested.
  EXPECT_EQ(text.Append(more.c_str(), 0), 1);
}

TEST_F(RunningOutOfMemory, MakesNarrowTextCompareLikeNull) {
  const BString text = bstringOf("ab");
  const CountingOleStrings::Exhausted exhausted;
  EXPECT_FALSE(text == "ab");
  EXPECT_TRUE(BString() == "ab");
  EXPECT_FALSE(text < "cd");
}
