// Tests stacks that only Windows has: of fibres, and of threads with a reserve for an overflow.

#include <gtest/gtest.h>
#include <malloc.h>
#include <windows.h>

#include <functional>

#include "nesting/Answer.h"
#include "nesting/Shapes.h"
#include "nesting/StackedThread.h"
#include "platform/StackBounds.h"

namespace {

// The rest of the calling thread's or fibre's stack, down to the lowest address that it may grow
// to.
std::size_t bytesLeft() {
  ULONG_PTR end = 0;
  ULONG_PTR top = 0;
  GetCurrentThreadStackLimits(&end, &top);
  return vorn::stackPosition() - end;
}

Answer answerWith(std::size_t left, const vorn::WideString& text) {
  volatile char* used = static_cast<char*>(_alloca(bytesLeft() - left));
  *used = 1;
  const Answer answer = answerFor(text);
  return *used == 1 ? answer : Answer::Wrong;
}

Answer answerOnFibre(std::size_t bytes, const std::function<Answer()>& ask) {
  struct Call {
    const std::function<Answer()>& ask;
    void* caller;
    Answer answer;
  } call{ask, ConvertThreadToFiber(nullptr), Answer::None};
  void* const fibre = CreateFiberEx(
      0, bytes, FIBER_FLAG_FLOAT_SWITCH,
      [](void* argument) {
        auto& itsCall = *static_cast<Call*>(argument);
        itsCall.answer = itsCall.ask();
        SwitchToFiber(itsCall.caller);
      },
      &call);
  SwitchToFiber(fibre);
  DeleteFiber(fibre);
  ConvertFiberToThread();
  return call.answer;
}

Answer answerOnFibre(std::size_t bytes, const vorn::WideString& text) {
  return answerOnFibre(bytes, [&] { return answerFor(text); });
}

}  // namespace

TEST(StackOfAFibre, IsUsedInFull) {
  EXPECT_EQ(answerOnFibre(8 * mebibyte, parentheses(8000)), Answer::Right);
}

TEST(StackOfAFibre, IsNotOverrunWhenItIsNearlyUsedUp) {
  const auto answer = [](const vorn::WideString& text) {
    return answerOnFibre(mebibyte, [&] { return answerWith(64 * kibibyte, text); });
  };
  EXPECT_EQ(answer(parentheses(2)), Answer::Right);
  for (const Shape& shape : allShapes()) {
    EXPECT_EQ(answer(shape.nested(20000)), Answer::TooDeep) << shape;
  }
}

TEST(StackWithAPartSetApartForAnOverflow, IsUsedUpToThatPart) {
  constexpr std::size_t setApart = 512 * kibibyte;
  onStackOf(mebibyte, [&] {
    auto bytes = static_cast<ULONG>(setApart);
    ASSERT_NE(SetThreadStackGuarantee(&bytes), 0);
    EXPECT_EQ(answerWith(setApart + 64 * kibibyte, parentheses(20)), Answer::Right);
    EXPECT_EQ(answerWith(setApart + 24 * kibibyte, parentheses(20)), Answer::TooDeep);
  });
}
