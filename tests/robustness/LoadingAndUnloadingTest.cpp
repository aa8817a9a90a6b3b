#include <gtest/gtest.h>

#include <cstddef>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

#include "nesting/StackedThread.h"
#include "robustness/FailingNew.h"
#include "robustness/LoadedLibrary.h"

namespace {

std::vector<std::string> answersOf(const LoadedLibrary& library) {
  std::vector<std::string> all;
  for (const Question& question : questions()) {
    all.push_back(answer(library.calls(), question));
  }
  return all;
}

std::vector<std::string> answersOfALoadedLibrary() { return answersOf(LoadedLibrary()); }

TEST(LoadingAndUnloading, TakesTheLibraryOutOfTheProcess) {
  answersOfALoadedLibrary();
  EXPECT_FALSE(LoadedLibrary::isPresent());
}

TEST(LoadingAndUnloading, AThousandTimesAnswersAlwaysTheSameInTheSameMemory) {
  const std::vector<std::string> expected = answersOfALoadedLibrary();
  const std::ptrdiff_t before = FailingNew::live();
  for (int i = 1; i < 1000; ++i) {
    ASSERT_EQ(answersOfALoadedLibrary(), expected);
  }
  EXPECT_EQ(FailingNew::live(), before);
}

TEST(LoadingAndUnloading, AfterDeepTextsTakesLittleStack) {
  const vorn::WideString deep = vorn::WideString(1500, u'(') + u"(a)-[b]-(a)";
  const vorn::WideString valid = u"RETURN " + deep + vorn::WideString(1500, u')');
  const vorn::WideString wrong = deep + u" ?";
  auto library = std::make_unique<LoadedLibrary>();
  std::vector<std::string> answers;
  onStackOf(64 * mebibyte, [&] {
    for (const Question& question :
         {Question{Question::Kind::columns, valid}, Question{Question::Kind::renaming, wrong}}) {
      answers.push_back(answer(library->calls(), question).substr(0, 14));
    }
  });
  EXPECT_EQ(answers, (std::vector<std::string>{"status 0, ((((", "failed: line 1"}));
  onStackOf(64 * kibibyte, [&] { library.reset(); });
  EXPECT_FALSE(LoadedLibrary::isPresent());
}

// An exit handler that the host registers before it loads the library runs after the destructors of
// the library.
TEST(EndOfTheProcess, LeavesACallThatTheHostMakesThenAnsweredAsAlways) {
  static const std::vector<std::string> expected = answersOfALoadedLibrary();
  EXPECT_EXIT(
      {
        static std::unique_ptr<LoadedLibrary> library;
        static_cast<void>(std::atexit([] { std::_Exit(answersOf(*library) == expected ? 0 : 1); }));
        library = std::make_unique<LoadedLibrary>();
        answersOf(*library);
        std::exit(0);
      },
      testing::ExitedWithCode(0), "");
}

}  // namespace
