// Tests stacks that the platform knows little of, and stacks that are nearly used up.

#include <alloca.h>
#include <gtest/gtest.h>
#include <ucontext.h>

#include <csignal>
#include <cstring>
#include <vector>

#include "Answer.h"
#include "Shapes.h"
#include "StackedThread.h"

namespace {

using vorn::WideString;

Answer answerBelow(std::size_t usedBytes, const WideString& text) {
  if (usedBytes == 0) {
    return answerFor(text);
  }
  auto* used = static_cast<char*>(alloca(usedBytes));
  std::memset(used, 1, usedBytes);
  const Answer answer = answerFor(text);
  return *used == 1 ? answer : Answer::Wrong;
}

// These are global, since makecontext passes only numbers to its function.
// NOLINTBEGIN(cppcoreguidelines-avoid-non-const-global-variables)
WideString contextText;
std::size_t contextUse = 0;
Answer contextAnswer{Answer::None};
// NOLINTEND(cppcoreguidelines-avoid-non-const-global-variables)

// Makes the call with `usedBytes` bytes of the stack in use.
Answer answerOnContextStack(std::size_t bytes, const WideString& text, std::size_t usedBytes = 0) {
  std::vector<char> stack(bytes);
  ucontext_t here{};
  ucontext_t there{};
  getcontext(&there);
  there.uc_stack.ss_sp = stack.data();
  there.uc_stack.ss_size = stack.size();
  there.uc_link = &here;
  contextText = text;
  contextUse = usedBytes;
  contextAnswer = Answer::None;
  // NOLINTNEXTLINE(cppcoreguidelines-pro-type-vararg): the last argument says that none follow.
  makecontext(
      &there, [] { contextAnswer = answerBelow(contextUse, contextText); }, 0);
  swapcontext(&here, &there);
  return contextAnswer;
}

TEST(StackOfACoroutine, AnswersATextThatNestsALittle) {
  EXPECT_EQ(answerOnContextStack(128 * kibibyte, parentheses(5)), Answer::Right);
}

TEST(StackOfACoroutine, RefusesATextThatNestsDeeply) {
  for (const Shape& shape : allShapes()) {
    EXPECT_EQ(answerOnContextStack(128 * kibibyte, shape.nested(20000)), Answer::TooDeep) << shape;
  }
}

TEST(StackOfACoroutine, IsNotOverrunWhereTheHostHasUsedAQuarterOfTheLeastSize) {
  for (const Shape& shape : allShapes()) {
    for (const std::size_t levels : {20U, 200U, 20000U}) {
      const Answer answer =
          answerOnContextStack(64 * kibibyte, shape.nested(levels), 16 * kibibyte);
      EXPECT_TRUE(answer == Answer::Right || answer == Answer::TooDeep) << shape << levels;
    }
  }
}

TEST(StackOfACoroutine, LeavesTheThreadsOwnStackAsItIs) {
  const WideString text = parentheses(8000);
  onStackOf(8 * mebibyte, [&] {
    EXPECT_EQ(answerFor(text), Answer::Right);
    EXPECT_EQ(answerOnContextStack(128 * kibibyte, text), Answer::TooDeep);
    EXPECT_EQ(answerFor(text), Answer::Right);
  });
}

Answer answerOnSignalStack(void* memory, std::size_t bytes, const WideString& text) {
  stack_t stack{};
  stack.ss_sp = memory;
  stack.ss_size = bytes;
  stack_t oldStack{};
  sigaltstack(&stack, &oldStack);
  struct sigaction action {};
  action.sa_handler = [](int) { contextAnswer = answerFor(contextText); };
  action.sa_flags = SA_ONSTACK;
  struct sigaction oldAction {};
  sigaction(SIGUSR1, &action, &oldAction);
  contextText = text;
  contextAnswer = Answer::None;
  EXPECT_EQ(raise(SIGUSR1), 0);
  sigaction(SIGUSR1, &oldAction, nullptr);
  sigaltstack(&oldStack, nullptr);
  return contextAnswer;
}

Answer answerOnSignalStack(std::size_t bytes, const WideString& text) {
  std::vector<char> memory(bytes);
  return answerOnSignalStack(memory.data(), bytes, text);
}

TEST(StackOfASignalHandler, IsUsedInFull) {
  EXPECT_EQ(answerOnSignalStack(mebibyte, parentheses(1000)), Answer::Right);
}

TEST(StackOfASignalHandler, IsNotOverrun) {
  EXPECT_EQ(answerOnSignalStack(128 * kibibyte, parentheses(20000)), Answer::TooDeep);
}

TEST(StackOfASignalHandler, IsNotOverrunWithinTheThreadsOwn) {
  onStackOf(8 * mebibyte, [] {
    constexpr std::size_t bytes = 128 * kibibyte;
    EXPECT_EQ(answerOnSignalStack(alloca(bytes), bytes, parentheses(1000)), Answer::TooDeep);
  });
}

// The answers to a text as less and less of the stack is left.
std::vector<Answer> answersWithLessAndLess(const WideString& text) {
  std::vector<Answer> answers;
  for (std::size_t left = 120; left >= VORN_LEAST_KIBIBYTES; left -= 4) {
    onStackOf(128 * kibibyte,
              [&] { answers.push_back(answerBelow((124 - left) * kibibyte, text)); });
  }
  return answers;
}

TEST(StackThatIsNearlyUsedUp, GivesAnAnswerOrARefusal) {
  const std::vector<Answer> answers = answersWithLessAndLess(parentheses(100));
  EXPECT_EQ(answers.front(), Answer::Right);
  EXPECT_EQ(answers.back(), Answer::TooDeep);
  for (const Answer answer : answers) {
    EXPECT_TRUE(answer == Answer::Right || answer == Answer::TooDeep);
  }
}

TEST(StackThatIsNearlyUsedUp, IsNotOverrunByAnyShape) {
  for (const Shape& shape : allShapes()) {
    for (const Answer answer : answersWithLessAndLess(shape.nested(20))) {
      EXPECT_TRUE(answer == Answer::Right || answer == Answer::TooDeep) << shape;
    }
    for (const Answer answer : answersWithLessAndLess(shape.nested(2000))) {
      EXPECT_EQ(answer, Answer::TooDeep) << shape;
    }
  }
}

}  // namespace
