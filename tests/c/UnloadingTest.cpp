// Loading and unloading the C interface, as hosts of other languages do at run time.

#include <dlfcn.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "robustness/FailingNew.h"
#include "vorn/vorn_c.h"

namespace {

/// The shared library, loaded while this lives.
class Library {
 public:
  Library() : handle_(::dlopen(VORN_C_LIBRARY, RTLD_NOW | RTLD_LOCAL)) {}
  Library(const Library&) = delete;
  Library& operator=(const Library&) = delete;
  Library(Library&&) = delete;
  Library& operator=(Library&&) = delete;
  ~Library() { ::dlclose(handle_); }

  [[nodiscard]] std::string messageFor(std::string_view query) const {
    vorn_answer* const answer =
        function<decltype(&vorn_columns_utf8)>("vorn_columns_utf8")(query.data(), query.size());
    std::size_t length = 0;
    const char* const message =
        function<decltype(&vorn_error_message_utf8)>("vorn_error_message_utf8")(answer, &length);
    std::string copy(message == nullptr ? "" : message, length);
    function<decltype(&vorn_release)>("vorn_release")(answer);
    return copy;
  }

 private:
  template <typename Function>
  [[nodiscard]] Function function(const char* name) const {
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): dlsym leaves no other way
    return reinterpret_cast<Function>(::dlsym(handle_, name));
  }

  void* handle_;
};

bool isPresent() {
  void* const present = ::dlopen(VORN_C_LIBRARY, RTLD_NOW | RTLD_NOLOAD);
  if (present != nullptr) {
    ::dlclose(present);
  }
  return present != nullptr;
}

std::vector<std::string> messages() {
  const Library library;
  return {library.messageFor("MATCH (n) RETURN n"), library.messageFor("MATCH (n) RETRUN n")};
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
  EXPECT_FALSE(isPresent());
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
