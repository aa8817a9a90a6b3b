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

// What was remembered of a deep text is a chain as long as the text was deep.
TEST(LoadingAndUnloading, AfterADeepTextTakesLittleStack) {
  const vorn::WideString text = vorn::WideString(u"RETURN ").append(1500, u'(') + u"(a)-[b]-(a)" +
                                vorn::WideString(1500, u')');
  auto library = std::make_unique<LoadedLibrary>();
  int status = 1;
  onStackOf(64 * mebibyte, [&] {
    std::vector<std::pair<vorn::WideString, vorn::CypherType>> columns;
    status = library->calls().columns(text, columns);
  });
  EXPECT_EQ(status, 0);
  onStackOf(64 * kibibyte, [&] { library.reset(); });
  EXPECT_FALSE(LoadedLibrary::isPresent());
}

// What a host does last comes after the destructors of a library that it has loaded in between.
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
