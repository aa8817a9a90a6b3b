// Arguments that no host should pass, and accessors that ask an answer for what it does not hold.

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "Ask.h"

using namespace c_interface;

namespace {

constexpr const char* noBytes = nullptr;
constexpr const std::uint16_t* noUnits = nullptr;

std::int32_t kindOf(vorn_answer* answer) {
  const Answer owner(answer);
  return vorn_error_kind(answer);
}

TEST(NullPointers, AreEmptyTextsIfTheirLengthIsZero) {
  EXPECT_EQ(kindOf(vorn_columns_utf8(noBytes, 0)), VORN_SYNTAX);
  EXPECT_EQ(kindOf(vorn_columns_utf16(noUnits, 0)), VORN_SYNTAX);
  EXPECT_EQ(kindOf(vorn_usages_utf8(noBytes, 0)), VORN_SYNTAX);
  EXPECT_EQ(kindOf(vorn_usages_utf16(noUnits, 0)), VORN_SYNTAX);
  EXPECT_EQ(kindOf(vorn_rename_utf8(noBytes, 0, nullptr, 0)), VORN_SYNTAX);
  EXPECT_EQ(kindOf(vorn_rename_utf16(noUnits, 0, nullptr, 0)), VORN_SYNTAX);
}

TEST(NullPointers, AreErrorsWithAnotherLength) {
  for (const std::size_t length : {std::size_t{1}, SIZE_MAX}) {
    EXPECT_EQ(kindOf(vorn_columns_utf8(noBytes, length)), VORN_BAD_ARGUMENT);
    EXPECT_EQ(kindOf(vorn_columns_utf16(noUnits, length)), VORN_BAD_ARGUMENT);
    EXPECT_EQ(kindOf(vorn_usages_utf8(noBytes, length)), VORN_BAD_ARGUMENT);
    EXPECT_EQ(kindOf(vorn_rename_utf16(noUnits, length, nullptr, 0)), VORN_BAD_ARGUMENT);
    EXPECT_EQ(kindOf(vorn_rename_utf8("n", 1, nullptr, length)), VORN_BAD_ARGUMENT);
  }
  const Answer answer(vorn_columns_utf8(noBytes, 1));
  EXPECT_STREQ(vorn_error_message_utf8(answer.get(), nullptr),
               "a pointer is null, but its length is not zero");
}

TEST(NullPointers, AreEmptyNamesOrErrorsToo) {
  const vorn_rename_pair_utf8 empty = {nullptr, 0, nullptr, 0};
  const Answer answer(vorn_rename_utf8("n", 1, &empty, 1));
  EXPECT_STREQ(vorn_renamed_utf8(answer.get(), nullptr), "n");
  const vorn_rename_pair_utf8 bad = {"n", 1, nullptr, 1};
  EXPECT_EQ(kindOf(vorn_rename_utf8("n", 1, &bad, 1)), VORN_BAD_ARGUMENT);
  const vorn_rename_pair_utf16 badToo = {nullptr, 2, nullptr, 0};
  const std::uint16_t n = 'n';
  EXPECT_EQ(kindOf(vorn_rename_utf16(&n, 1, &badToo, 1)), VORN_BAD_ARGUMENT);
}

// Nothing behind the first unit may be read.
TEST(Lengths, BeyondWhatFitsAreRefusedUnread) {
  const std::uint16_t unit = 'n';
  for (const std::size_t length :
       {(std::size_t{1} << 30U) + 1, SIZE_MAX / 2 + 1, SIZE_MAX - 1, SIZE_MAX}) {
    EXPECT_EQ(kindOf(vorn_columns_utf8("n", length)), VORN_TOO_LARGE);
    EXPECT_EQ(kindOf(vorn_columns_utf16(&unit, length)), VORN_TOO_LARGE);
    EXPECT_EQ(kindOf(vorn_usages_utf8("n", length)), VORN_TOO_LARGE);
    EXPECT_EQ(kindOf(vorn_usages_utf16(&unit, length)), VORN_TOO_LARGE);
    const vorn_rename_pair_utf8 pair = {"n", length, "m", 1};
    EXPECT_EQ(kindOf(vorn_rename_utf8("n", 1, &pair, 1)), VORN_TOO_LARGE);
    EXPECT_EQ(kindOf(vorn_rename_utf8("n", 1, &pair, length)), VORN_TOO_LARGE);
  }
}

TEST(Text, ThatIsNoUtf8IsRefused) {
  for (const std::string text : {"\xFF", "n\xC3", "\x80", "n = '\xED\xA0\x80'", "\xC0\xAF",
                                 "'\xF4\x90\x80\x80'", "'\xE2\x82'"}) {
    EXPECT_EQ(kindOf(vorn_columns_utf8(text.data(), text.size())), VORN_NOT_WELL_FORMED) << text;
    EXPECT_EQ(kindOf(vorn_usages_utf8(text.data(), text.size())), VORN_NOT_WELL_FORMED) << text;
    const vorn_rename_pair_utf8 from = {text.data(), text.size(), "m", 1};
    const vorn_rename_pair_utf8 to = {"m", 1, text.data(), text.size()};
    EXPECT_EQ(kindOf(vorn_rename_utf8("n", 1, &from, 1)), VORN_NOT_WELL_FORMED) << text;
    EXPECT_EQ(kindOf(vorn_rename_utf8("n", 1, &to, 1)), VORN_NOT_WELL_FORMED) << text;
  }
}

TEST(Text, WithHalfASurrogateIsRefused) {
  for (const std::vector<std::uint16_t>& text : std::vector<std::vector<std::uint16_t>>{
           {0xD83D}, {0xDE00}, {0xDE00, 0xD83D}, {'n', 0xD83D, 'n'}}) {
    EXPECT_EQ(kindOf(vorn_columns_utf16(text.data(), text.size())), VORN_NOT_WELL_FORMED);
    EXPECT_EQ(kindOf(vorn_usages_utf16(text.data(), text.size())), VORN_NOT_WELL_FORMED);
    const std::uint16_t n = 'n';
    const vorn_rename_pair_utf16 pair = {&n, 1, text.data(), text.size()};
    EXPECT_EQ(kindOf(vorn_rename_utf16(&n, 1, &pair, 1)), VORN_NOT_WELL_FORMED);
  }
}

TEST(AnAnswer, IsInTheEncodingOfItsQuestionOnly) {
  std::size_t length = 7;
  const Answer columns(vorn_columns_utf8("RETURN 1", 8));
  EXPECT_EQ(vorn_column_name_utf16(columns.get(), 0, &length), nullptr);
  EXPECT_EQ(length, 0U);
  EXPECT_EQ(vorn_error_message_utf16(columns.get(), nullptr), nullptr);
  const std::uint16_t n = 'n';
  const Answer usages(vorn_usages_utf16(&n, 1));
  EXPECT_EQ(vorn_variable_name_utf8(usages.get(), 0, nullptr), nullptr);
  EXPECT_EQ(vorn_error_element_utf8(usages.get(), nullptr), nullptr);
}

TEST(AnAnswer, HasNothingBeyondItsCounts) {
  const std::string filter = "n.a:A";
  const Answer owner(vorn_usages_utf8(filter.data(), filter.size()));
  const vorn_answer* const answer = owner.get();
  ASSERT_NE(vorn_label_utf8(answer, 0, 0, 0, nullptr), nullptr);
  for (const std::size_t beyond : {std::size_t{1}, SIZE_MAX}) {
    EXPECT_EQ(vorn_variable_name_utf8(answer, beyond, nullptr), nullptr);
    EXPECT_EQ(vorn_written_form_count(answer, beyond), 0U);
    EXPECT_EQ(vorn_written_form_utf8(answer, beyond, 0, nullptr), nullptr);
    EXPECT_EQ(vorn_written_form_utf8(answer, 0, beyond, nullptr), nullptr);
    EXPECT_EQ(vorn_access_count(answer, beyond), 0U);
    EXPECT_EQ(vorn_property_count(answer, beyond, 0), 0U);
    EXPECT_EQ(vorn_property_count(answer, 0, beyond), 0U);
    EXPECT_EQ(vorn_property_utf8(answer, beyond, 0, 0, nullptr), nullptr);
    EXPECT_EQ(vorn_property_utf8(answer, 0, beyond, 0, nullptr), nullptr);
    EXPECT_EQ(vorn_property_utf8(answer, 0, 0, beyond, nullptr), nullptr);
    EXPECT_EQ(vorn_label_count(answer, 0, beyond), 0U);
    EXPECT_EQ(vorn_label_utf8(answer, 0, beyond, 0, nullptr), nullptr);
    EXPECT_EQ(vorn_label_utf8(answer, 0, 0, beyond, nullptr), nullptr);
  }
}

TEST(AnAnswer, ToAnotherQuestionHasNothing) {
  const Answer usages(vorn_usages_utf8("n", 1));
  EXPECT_EQ(vorn_column_count(usages.get()), 0U);
  EXPECT_EQ(vorn_column_name_utf8(usages.get(), 0, nullptr), nullptr);
  EXPECT_EQ(vorn_column_type(usages.get(), 0), VORN_UNKNOWN);
  EXPECT_EQ(vorn_renamed_utf8(usages.get(), nullptr), nullptr);
  const Answer columns(vorn_columns_utf8("RETURN 1", 8));
  EXPECT_EQ(vorn_variable_count(columns.get()), 0U);
  EXPECT_EQ(vorn_variable_name_utf8(columns.get(), 0, nullptr), nullptr);
  EXPECT_EQ(vorn_renamed_utf8(columns.get(), nullptr), nullptr);
}

TEST(Releasing, ANullPointerDoesNothing) { vorn_release(nullptr); }

#if !defined(NDEBUG)

TEST(Releasing, AnAnswerTwiceEndsTheProcessInADebugBuild) {
  testing::FLAGS_gtest_death_test_style = "threadsafe";
  EXPECT_DEATH(
      {
        vorn_answer* const answer = vorn_columns_utf8("RETURN 1", 8);
        vorn_release(answer);
        // The memory of the first one must not be that of the second.
        const Answer other(vorn_columns_utf8("RETURN 1", 8));
        vorn_release(answer);
      },
      "the answer has been released before");
}

#endif

}  // namespace
