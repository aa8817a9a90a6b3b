// Every allocation that a call makes may fail. Then the answer says that memory ran out, nothing is
// lost, and the next call is answered as if nothing had been.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string>
#include <string_view>

#include "robustness/ChildProcess.h"
#include "robustness/FailingNew.h"
#include "vorn/vorn_c.h"

namespace {

struct Question {
  const char* name;
  vorn_answer* (*ask)(const std::string& text);
  std::string text;

  friend std::ostream& operator<<(std::ostream& out, const Question& question) {
    return out << question.name;
  }
};

// Without a zero, as in the host's own memory. Nothing here may allocate but the library.
template <auto function>
vorn_answer* inUtf8(const std::string& text) {
  return function(text.data(), text.size());
}

template <auto function>
vorn_answer* inUtf16(const std::string& ascii) {
  static std::array<std::uint16_t, 256> units;
  std::copy(ascii.begin(), ascii.end(), units.begin());
  return function(units.data(), ascii.size());
}

vorn_answer* renaming(const std::string& text) {
  const std::array<vorn_rename_pair_utf8, 2> pairs = {
      {{"n", 1, "a name of some length", 21}, {"`m`", 3, "o", 1}}};
  return vorn_rename_utf8(text.data(), text.size(), pairs.data(), pairs.size());
}

vorn_answer* badPair(const std::string& text) {
  const vorn_rename_pair_utf8 pair = {nullptr, 1, "o", 1};
  return vorn_rename_utf8(text.data(), text.size(), &pair, 1);
}

// What the answer tells, as far as it can be compared.
std::string toldBy(const vorn_answer* answer) {
  std::string told = std::to_string(vorn_error_kind(answer));
  for (const std::size_t number :
       {vorn_error_line(answer), vorn_error_column(answer), vorn_error_offset(answer),
        vorn_column_count(answer), vorn_variable_count(answer), vorn_expression_end(answer)}) {
    told += " " + std::to_string(number);
  }
  std::size_t length = 0;
  if (const char* const text = vorn_renamed_utf8(answer, &length)) {
    told += " " + std::string(text, length);
  }
  if (const char* const text = vorn_error_message_utf8(answer, &length)) {
    told += " " + std::string(text, length);
  }
  return told;
}

struct Attempt {
  bool isOutOfMemory;
  std::string told;
  std::size_t allocations;
};

Attempt ask(const Question& question, std::size_t failing) {
  FailingNew::failAt(failing);
  vorn_answer* const answer = question.ask(question.text);
  const std::size_t allocations = FailingNew::allocations();
  FailingNew::failAt(0);
  const Attempt attempt = {vorn_error_kind(answer) == VORN_OUT_OF_MEMORY, toldBy(answer),
                           allocations};
  vorn_release(answer);
  return attempt;
}

// A failure may remain without consequence, and the runtime may cut its message short.
bool isRight(const Attempt& attempt, const std::string& expected) {
  return attempt.isOutOfMemory || attempt.told == expected.substr(0, attempt.told.size());
}

// What the process itself sets up once, at the first exception for instance, is not the library's.
class CFailingAllocations : public testing::TestWithParam<Question> {};

TEST_P(CFailingAllocations, InALaterCallAreTold) {
  EXPECT_EQ(inChildProcess([]() -> std::string {
              const std::string expected = ask(GetParam(), 0).told;
              const std::size_t all = ask(GetParam(), 0).allocations;
              // Debug builds of the library keep the memory of this many released answers.
              for (int i = 0; i != 1024; ++i) {
                vorn_release(vorn_columns_utf8(nullptr, 1));
              }
              std::size_t outOfMemory = 0;
              for (std::size_t failing = 1; failing <= all; ++failing) {
                const std::ptrdiff_t before = FailingNew::live();
                {
                  const Attempt attempt = ask(GetParam(), failing);
                  if (!isRight(attempt, expected)) {
                    return "allocation " + std::to_string(failing) + ": " + attempt.told;
                  }
                  outOfMemory += attempt.isOutOfMemory ? 1 : 0;
                }
                if (FailingNew::live() > before) {
                  return "allocation " + std::to_string(failing) + " leaves something behind";
                }
              }
              return outOfMemory == 0                      ? "none is told of"
                     : ask(GetParam(), 0).told == expected ? ""
                                                           : "the next answer is wrong";
            }),
            "");
}

TEST_P(CFailingAllocations, InTheFirstCallOfAProcessLeaveTheNextOneRight) {
  const std::string expected = inChildProcess([] { return ask(GetParam(), 0).told; });
  const std::size_t all =
      std::stoul(inChildProcess([] { return std::to_string(ask(GetParam(), 0).allocations); }));
  constexpr std::size_t step = 1499;  // the first wrong text makes some 100,000
  for (std::size_t failing = 1; failing <= all; failing += step) {
    ASSERT_EQ(inChildProcess([&]() -> std::string {
                if (!isRight(ask(GetParam(), failing), expected)) {
                  return "it ends otherwise";
                }
                return ask(GetParam(), 0).told == expected ? "" : "the next answer is wrong";
              }),
              "")
        << "allocation " << failing << " of " << all;
  }
}

INSTANTIATE_TEST_SUITE_P(
    Of, CFailingAllocations,
    testing::Values(
        Question{"Columns", inUtf8<vorn_columns_utf8>,
                 "MATCH p = (n)-[r]-(m) RETURN p, n.`a longer name than fits` AS `größe 😀`, r, *"},
        Question{"ColumnsInUtf16", inUtf16<vorn_columns_utf16>,
                 "MATCH (n) RETURN n, n.a_longer_name_than_fits_without_memory"},
        Question{"WrongQuery", inUtf8<vorn_columns_utf8>, "MATCH (n RETURN n"},
        Question{"WrongQueryInUtf16", inUtf16<vorn_columns_utf16>, "RETURN 'not closed"},
        Question{"NoUtf8", inUtf8<vorn_columns_utf8>, "\xFF"},
        Question{"Usages", inUtf8<vorn_usages_utf8>, "n.address.city = `n` AND `m`:A:B OR o[1].a"},
        Question{"UsagesInUtf16", inUtf16<vorn_usages_utf16>, "n.address.city = `n` AND m:A:B"},
        Question{"WrongFilter", inUtf8<vorn_usages_utf8>, "n.a = AND"},
        Question{"ForbiddenElement", inUtf8<vorn_usages_utf8>, "any(x IN n.l WHERE x)"},
        Question{"Renaming", renaming, "n.n = $n AND any(x IN n.l WHERE m.x = `n`) /* n */"},
        Question{"WrongRenaming", renaming, "(n.a"}, Question{"BadPair", badPair, "n.a"}),
    testing::PrintToStringParamName());

TEST(WithoutMemory, TheAnswerSaysSoInItsEncoding) {
  FailingNew::failAt(1);
  vorn_answer* const first = vorn_columns_utf8("RETURN 1", 8);
  FailingNew::failAt(1);
  const std::uint16_t n = 'n';
  vorn_answer* const second = vorn_usages_utf16(&n, 1);
  FailingNew::failAt(0);
  EXPECT_EQ(vorn_error_kind(first), VORN_OUT_OF_MEMORY);
  EXPECT_STREQ(vorn_error_message_utf8(first, nullptr), "memory ran out");
  EXPECT_STREQ(vorn_error_element_utf8(first, nullptr), "");
  EXPECT_EQ(vorn_error_message_utf16(first, nullptr), nullptr);
  EXPECT_EQ(vorn_column_count(first), 0U);
  EXPECT_EQ(vorn_error_kind(second), VORN_OUT_OF_MEMORY);
  std::size_t length = 0;
  const std::uint16_t* const message = vorn_error_message_utf16(second, &length);
  const std::string expected = std::string("memory ran out") + '\0';
  EXPECT_TRUE(std::equal(expected.begin(), expected.end(), message));
  EXPECT_EQ(length, expected.size() - 1);
  EXPECT_EQ(vorn_renamed_utf16(second, nullptr), nullptr);
  // They belong to nobody, so they may be released by each who got them.
  vorn_release(first);
  vorn_release(second);
  FailingNew::failAt(1);
  vorn_answer* const again = vorn_columns_utf8("RETURN 1", 8);
  FailingNew::failAt(0);
  EXPECT_STREQ(vorn_error_message_utf8(again, nullptr), "memory ran out");
  vorn_release(again);
}

}  // namespace
