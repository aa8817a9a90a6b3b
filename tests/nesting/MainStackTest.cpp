// Tests the stack of the main thread, whose size no system call tells. Each test asks on the main
// thread of a process of its own.

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <functional>
#include <stdexcept>
#include <string>

#include "Answer.h"
#include "Shapes.h"
#include "StackedThread.h"
#include "robustness/ChildProcess.h"

namespace {

constexpr std::size_t tooMany = 200'000;

void setSoftLimit(decltype(RLIMIT_STACK) resource, rlim_t value) {
  rlimit limit{};
  if (::getrlimit(resource, &limit) != 0) {
    throw std::runtime_error("no such limit");
  }
  limit.rlim_cur = value;
  if (::setrlimit(resource, &limit) != 0) {
    throw std::runtime_error("the limit cannot be set");
  }
}

void setStack(std::size_t bytes) { setSoftLimit(RLIMIT_STACK, bytes); }

// After this no file can be opened, not even one in /proc.
void leaveNoFileDescriptor() {
  setSoftLimit(RLIMIT_NOFILE, 0);
  if (::dup(STDERR_FILENO) >= 0) {
    throw std::runtime_error("there are descriptors left");
  }
}

vorn::WideString wrong(std::size_t levels) { return Shape{"", "(", ")", "a ?"}.nested(levels); }

// "right", "wrong" with a message of its own, or "too deep".
std::string kindOfAnswer(const vorn::WideString& text) {
  try {
    return answerFor(text) == Answer::Right     ? "right"
           : answerFor(text) == Answer::TooDeep ? "too deep"
                                                : "another text";
  } catch (const std::exception& error) {
    return std::string(error.what()).substr(0, 7);
  }
}

std::string answers() {
  std::string all;
  for (const std::size_t levels : {5UL, 1000UL, 8000UL, tooMany}) {
    all += kindOfAnswer(parentheses(levels)) + ", ";
  }
  for (const std::size_t levels : {5UL, 250UL, 2000UL, tooMany}) {
    all += kindOfAnswer(wrong(levels)) + ", ";
  }
  return all;
}

std::string answersAfter(const std::function<void()>& preparation) {
  return inChildProcess([&] {
    preparation();
    return answers();
  });
}

void callBefore() { answerFor(parentheses(1)); }

const std::string onEightMebibytes =
    "right, right, right, too deep, line 1:, line 1:, line 1:, too deep, ";
const std::string onOneMebibyte =
    "right, right, too deep, too deep, line 1:, line 1:, too deep, too deep, ";

// Environment, arguments and this program take some of the stack.
constexpr std::size_t roomForOthers = 64 * kibibyte;
constexpr std::size_t oneMebibyteLeft = mebibyte + roomForOthers;
constexpr std::size_t eightMebibytesLeft = 8 * mebibyte + roomForOthers;

TEST(MainStack, IsUsedAsTheLimitHasIt) {
  EXPECT_EQ(answersAfter([] { setStack(eightMebibytesLeft); }), onEightMebibytes);
  EXPECT_EQ(answersAfter([] { setStack(oneMebibyteLeft); }), onOneMebibyte);
}

TEST(MainStack, IsUsedTheSameAfterAnEarlierCall) {
  EXPECT_EQ(answersAfter([] {
              setStack(eightMebibytesLeft);
              callBefore();
            }),
            onEightMebibytes);
}

TEST(MainStack, IsUsedTheSameWithNoFileDescriptorLeft) {
  EXPECT_EQ(answersAfter([] {
              setStack(eightMebibytesLeft);
              leaveNoFileDescriptor();
            }),
            onEightMebibytes);
  EXPECT_EQ(answersAfter([] {
              setStack(oneMebibyteLeft);
              leaveNoFileDescriptor();
            }),
            onOneMebibyte);
}

TEST(MainStack, IsUsedTheSameWithNoFileDescriptorLeftAfterAnEarlierCall) {
  EXPECT_EQ(answersAfter([] {
              setStack(eightMebibytesLeft);
              callBefore();
              leaveNoFileDescriptor();
            }),
            onEightMebibytes);
}

TEST(MainStack, IsUsedTheSameAfterACallThatHadNoFileDescriptor) {
  EXPECT_EQ(inChildProcess([] {
              setStack(eightMebibytesLeft);
              rlimit before{};
              ::getrlimit(RLIMIT_NOFILE, &before);
              leaveNoFileDescriptor();
              callBefore();
              setSoftLimit(RLIMIT_NOFILE, before.rlim_cur);
              return answers();
            }),
            onEightMebibytes);
}

TEST(MainStack, FollowsALimitThatIsLoweredAfterTheFirstCall) {
  EXPECT_EQ(answersAfter([] {
              setStack(eightMebibytesLeft);
              callBefore();
              setStack(oneMebibyteLeft);
            }),
            onOneMebibyte);
}

TEST(MainStack, FollowsALimitThatIsRaisedAfterTheFirstCall) {
  EXPECT_EQ(answersAfter([] {
              setStack(oneMebibyteLeft);
              callBefore();
              setStack(eightMebibytesLeft);
            }),
            onEightMebibytes);
}

TEST(MainStack, WithALimitBelowWhatIsUsedRefusesATextThatNests) {
  EXPECT_EQ(inChildProcess([] {
              setStack(4 * kibibyte);
              return kindOfAnswer(parentheses(100)) + ", " + kindOfAnswer(wrong(1));
            }),
            "too deep, too deep");
}

TEST(MainStack, IsNotOverrunByAnyShape) {
  for (const Shape& shape : allShapes()) {
    EXPECT_EQ(inChildProcess([&] {
                setStack(oneMebibyteLeft);
                leaveNoFileDescriptor();
                return kindOfAnswer(shape.nested(20000)) + ", " +
                       kindOfAnswer(shape.unbalanced(20000));
              }),
              "too deep, too deep")
        << shape;
  }
}

// Other threads have stacks of their own, to which the limit of the main stack does not apply.
TEST(StackOfAThread, IsUsedTheSameWithNoFileDescriptorLeft) {
  EXPECT_EQ(inChildProcess([] {
              leaveNoFileDescriptor();
              setStack(256 * kibibyte);
              std::string all;
              onStackOf(mebibyte, [&] { all = answers(); });
              return all;
            }),
            onOneMebibyte);
}

}  // namespace
