// Tests that no setting of a host's process changes an answer. Each setting is tried in a process
// of its own that has not called the library before.

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/time.h>

#include <array>
#include <cfenv>
#include <clocale>
#include <csignal>
#include <locale>
#include <string>
#include <vector>

#include "robustness/ChildProcess.h"
#include "robustness/LoadedLibrary.h"

namespace {

// All questions, and one with an error at a place whose number a locale would write with a comma.
std::vector<Question> allQuestions() {
  std::vector<Question> all = questions();
  all.push_back({Question::Kind::usages, vorn::WideString(12345, u'1') + u" = "});
  return all;
}

std::string answers() {
  const LoadedLibrary library;
  std::string all;
  for (const Question& question : allQuestions()) {
    all += answer(library.calls(), question) + "\n";
  }
  return all;
}

template <typename Setting>
std::string answersUnder(const Setting& setting) {
  return inChildProcess([&] {
    setting();
    return answers();
  });
}

class HostSettings : public testing::Test {
 protected:
  const std::string expected = inChildProcess(answers);
};

class Grouping : public std::numpunct<char> {
  char do_thousands_sep() const override { return ','; }
  std::string do_grouping() const override { return "\1"; }
};

TEST_F(HostSettings, ALocaleThatGroupsDigitsChangesNothing) {
  EXPECT_EQ(answersUnder([] {
              // The locale frees the facet.
              std::locale::global(std::locale(std::locale::classic(), new Grouping));
            }),
            expected);
}

#if defined(VORN_TEST_LOCALES)
TEST_F(HostSettings, TheTurkishLocaleChangesNothing) {
  EXPECT_EQ(answersUnder([] {
              ::setenv("LOCPATH", VORN_TEST_LOCALES, 1);
              if (std::setlocale(LC_CTYPE, "tr_TR.UTF-8") == nullptr) {
                throw std::runtime_error("no such locale");
              }
            }),
            expected);
}
#endif

TEST_F(HostSettings, ClosedStandardStreamsChangeNothing) {
  EXPECT_EQ(answersUnder([] {
              ::close(STDIN_FILENO);
              ::close(STDOUT_FILENO);
              ::close(STDERR_FILENO);
            }),
            expected);
}

TEST_F(HostSettings, NothingIsWrittenToTheStandardStreams) {
  std::array<char, 16> name = {"/tmp/vornXXXXXX"};
  const int file = ::mkstemp(name.data());
  ASSERT_GE(file, 0);
  ::unlink(name.data());
  const std::string actual = answersUnder([&] {
    ::dup2(file, STDOUT_FILENO);
    ::dup2(file, STDERR_FILENO);
  });
  EXPECT_EQ(actual, expected);
  EXPECT_EQ(::lseek(file, 0, SEEK_END), 0);
  ::close(file);
}

void trapFloatingPointExceptions() {
#if defined(__GLIBC__)
  ::feenableexcept(FE_DIVBYZERO | FE_INVALID | FE_OVERFLOW | FE_UNDERFLOW);
#endif
}

TEST_F(HostSettings, AnotherRoundingAndTrappedFloatingPointExceptionsChangeNothing) {
  EXPECT_EQ(answersUnder([] {
              std::fesetround(FE_UPWARD);
              trapFloatingPointExceptions();
            }),
            expected);
}

TEST_F(HostSettings, AForkBetweenCallsChangesNothing) {
  const LoadedLibrary library;
  EXPECT_EQ(answers(), expected);
  EXPECT_EQ(inChildProcess(answers), expected);
  EXPECT_EQ(answers(), expected);
}

volatile std::sig_atomic_t signalsHandled = 0;
std::string answersInHandler;

template <std::size_t size>
void handleOnAnotherStack(int signal, void (*handler)(int)) {
  static std::array<char, size> stack;
  stack_t description{};
  description.ss_sp = stack.data();
  description.ss_size = stack.size();
  struct sigaction action {};
  action.sa_handler = handler;
  action.sa_flags = SA_ONSTACK | SA_RESTART;
  if (::sigaltstack(&description, nullptr) != 0 || ::sigaction(signal, &action, nullptr) != 0) {
    throw std::runtime_error("no alternate stack");
  }
}

TEST_F(HostSettings, SignalsThatInterruptCallsChangeNothing) {
  EXPECT_EQ(answersUnder([] {
              constexpr std::size_t size = 65536;
              handleOnAnotherStack<size>(
                  SIGALRM, [](int /*signal*/) { signalsHandled = signalsHandled + 1; });
              const timeval often{0, 100};
              const itimerval timer{often, often};
              ::setitimer(ITIMER_REAL, &timer, nullptr);
            }),
            expected);
}

TEST_F(HostSettings, ACallOnAnAlternateStackIsAnsweredTheSame) {
  EXPECT_EQ(inChildProcess([] {
              constexpr std::size_t size = 1 << 20;
              handleOnAnotherStack<size>(SIGUSR1,
                                         [](int /*signal*/) { answersInHandler = answers(); });
              static_cast<void>(std::raise(SIGUSR1));
              return answersInHandler;
            }),
            expected);
}

}  // namespace
