#include <gtest/gtest.h>
#include <malloc.h>

#include <string>
#include <vector>

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
  for (int i = 0; i < 100; ++i) {
    ASSERT_EQ(answersOfALoadedLibrary(), expected);
  }
  const std::size_t before = ::mallinfo2().uordblks;
  for (int i = 0; i < 900; ++i) {
    ASSERT_EQ(answersOfALoadedLibrary(), expected);
  }
  // A byte each time, if at all.
  EXPECT_LT(::mallinfo2().uordblks, before + 900);
}

}  // namespace
