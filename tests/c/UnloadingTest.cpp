// Loading and unloading the C interface, as hosts of other languages do at run time.

#include <dlfcn.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "robustness/FailingNew.h"
#include "robustness/LoadedLibrary.h"
#include "vorn/vorn_c.h"

namespace {

template <typename Function>
Function function(const LoadedLibrary& library, const char* name) {
  // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): dlsym leaves no other way
  return reinterpret_cast<Function>(::dlsym(library.handle(), name));
}

std::string messageFor(const LoadedLibrary& library, std::string_view query) {
  const auto ask = function<decltype(&vorn_columns_utf8)>(library, "vorn_columns_utf8");
  const auto read =
      function<decltype(&vorn_error_message_utf8)>(library, "vorn_error_message_utf8");
  vorn_answer* const answer = ask(query.data(), query.size());
  std::size_t length = 0;
  const char* const message = read(answer, &length);
  std::string copy(message == nullptr ? "" : message, length);
  function<decltype(&vorn_release)>(library, "vorn_release")(answer);
  return copy;
}

std::vector<std::string> messages() {
  const LoadedLibrary library;
  return {messageFor(library, "MATCH (n) RETURN n"), messageFor(library, "MATCH (n) RETRUN n")};
}

class CUnloading : public testing::Test {
 protected:
  void SetUp() override {
#if !defined(NDEBUG)
    GTEST_SKIP() << "A debug build keeps the last released answers, and loses them when unloaded.";
#endif
  }
};

TEST_F(CUnloading, TakesTheLibraryOutOfTheProcess) {
  messages();
  EXPECT_FALSE(LoadedLibrary::isPresent());
}

TEST_F(CUnloading, AThousandTimesAnswersAlwaysTheSameInTheSameMemory) {
  const std::vector<std::string> expected = messages();
  EXPECT_EQ(expected,
            (std::vector<std::string>{"", "no viable alternative at input 'MATCH (n) RETRUN'"}));
  const std::ptrdiff_t before = FailingNew::live();
  for (int i = 1; i < 1000; ++i) {
    ASSERT_EQ(messages(), expected);
  }
  EXPECT_EQ(FailingNew::live(), before);
}

}  // namespace
