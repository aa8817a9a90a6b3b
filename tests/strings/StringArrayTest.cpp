#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "PrivateMembers.h"
#include "Strings.h"
#include "vorn/strings/StringArray.h"

namespace {

// Owns Strings and the array of pointers that a StringArray refers to.
class Elements {
 public:
  explicit Elements(const std::vector<std::string_view>& texts) {
    for (const std::string_view text : texts) {
      strings.push_back(stringOf(text));
    }
    for (String& each : strings) {
      pointers.push_back(&each);
    }
  }

  StringArray array() { return {pointers.data(), static_cast<std::int32_t>(pointers.size())}; }

  std::vector<std::string> inOrder() const {
    std::vector<std::string> texts;
    for (const String* each : pointers) {
      texts.push_back(utf8Of(*each));
    }
    return texts;
  }

 private:
  std::vector<String> strings;
  std::vector<String*> pointers;
};

const String& element(const void* place) { return **static_cast<const String* const*>(place); }

int shorterFirst(const void* left, const void* right) {
  return static_cast<int>(element(left).GetLength()) - static_cast<int>(element(right).GetLength());
}

using Texts = std::vector<std::string>;

}  // namespace

TEST(AStringArray, IsAPointerFollowedByACount) {
  Elements elements({"a", "b", "c"});
  const StringArray array = elements.array();
  struct {
    String** elements;
    std::int32_t count;
  } fields{};
  std::memcpy(&fields, reinterpret_cast<const char*>(&array), sizeof fields);
  EXPECT_EQ(utf8Of(*fields.elements[2]), "c");
  EXPECT_EQ(fields.count, 3);
}

TEST(AStringArray, TellsItsSize) {
  EXPECT_EQ(Elements({"a", "b", "c"}).array().GetSize(), 3);
  EXPECT_EQ(StringArray(nullptr, 0).GetSize(), 0);
}

TEST(SortingAStringArray, OrdersByCodeUnitsByDefault) {
  Elements elements({"b", "a", "", "\uFF5E", "B", "ab", "\U0001F600"});
  elements.array().Sort();
  EXPECT_EQ(elements.inOrder(), (Texts{"", "B", "a", "ab", "b", "\U0001F600", "\uFF5E"}));
}

TEST(SortingAStringArray, UsesTheCallersComparison) {
  Elements elements({"aaa", "c", "bb", ""});
  elements.array().Sort(shorterFirst);
  EXPECT_EQ(elements.inOrder(), (Texts{"", "c", "bb", "aaa"}));
}

TEST(SortingAStringArray, MovesPointersOnly) {
  String b = stringOf("b");
  String a = stringOf("a");
  String* pointers[] = {&b, &a};
  StringArray(pointers, 2).Sort();
  EXPECT_EQ(pointers[0], &a);
  EXPECT_EQ(pointers[1], &b);
  EXPECT_EQ(utf8Of(b), "b");
}

TEST(SortingAStringArray, LeavesAnEmptyOneAlone) {
  StringArray(nullptr, 0).Sort();
  Elements one({"a"});
  one.array().Sort();
  EXPECT_EQ(one.inOrder(), Texts{"a"});
}

TEST(TheDefaultComparison, TellsCasesApartAndStopsAtTheFirstZero) {
  String lower = stringOf("a");
  String upper = stringOf("A");
  String withZero = stringOf("a");
  withZero.ConcatImpl(wide("").c_str(), 1);
  withZero.ConcatImpl(wide("z").c_str(), 1);
  String* lowerPlace = &lower;
  String* upperPlace = &upper;
  String* withZeroPlace = &withZero;
  EXPECT_LT(compareElements(&upperPlace, &lowerPlace), 0);
  EXPECT_GT(compareElements(&lowerPlace, &upperPlace), 0);
  EXPECT_EQ(compareElements(&lowerPlace, &withZeroPlace), 0);
}
