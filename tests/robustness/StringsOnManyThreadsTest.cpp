#include <gtest/gtest.h>

#include <array>
#include <future>
#include <string>
#include <vector>

#include "vorn/strings/BString.h"
#include "vorn/strings/String.h"
#include "vorn/strings/StringArray.h"

namespace {

// Uses the string classes in objects of its own, and reads an object that all threads share.
bool works(const String& shared) {
  for (int i = 0; i < 1000; ++i) {
    String text(u"left");
    text.ConcatImpl(u" and right", 10);
    BString copy(text);
    if (copy.Append(u"!") != 0 || !(copy == "left and right!") || copy < BString(text)) {
      return false;
    }
    String first(u"b");
    String second(u"a");
    std::array<String*, 2> elements = {&first, &second};
    StringArray(elements.data(), 2).Sort();
    if (elements.front() != &second || shared.CompareNoCase(u"SHARED") != 0 ||
        shared.GetByteLength() != 6) {
      return false;
    }
  }
  return true;
}

TEST(StringsOnManyThreads, WorkAsOnOne) {
  const String shared(u"shared");
  std::vector<std::future<bool>> running;
  for (int i = 0; i < 8; ++i) {
    running.push_back(std::async(std::launch::async, [&] { return works(shared); }));
  }
  for (auto& thread : running) {
    EXPECT_TRUE(thread.get());
  }
}

}  // namespace
