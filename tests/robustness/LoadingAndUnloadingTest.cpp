#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <vector>

#include "robustness/FailingNew.h"
#include "robustness/LoadedLibrary.h"

namespace {

std::vector<std::string> answersOfALoadedLibrary() {
  const LoadedLibrary library;
  std::vector<std::string> all;
  for (const Question& question : questions()) {
    all.push_back(answer(library.calls(), question));
  }
  return all;
}

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

}  // namespace
