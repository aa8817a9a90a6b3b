#include <array>
#include <vector>

#include "Input.h"
#include "Properties.h"
#include "vorn/vorn_c.h"

namespace {

// The parts of an answer that can be compared between the encodings.
struct Told {
  std::int32_t kind;
  std::vector<std::size_t> numbers;
};

template <typename Unit>
void requireString(const Unit* string, std::size_t length) {
  require(string != nullptr && string[length] == 0, "a string is there, with a zero behind it");
}

// Reads everything that an answer may hold, and checks the strings.
Told toldBy(vorn_answer* answer, std::size_t textLength, bool isUtf16) {
  require(answer != nullptr, "there is an answer");
  Told told{vorn_error_kind(answer), {vorn_error_line(answer), vorn_error_column(answer)}};
  require(told.kind >= VORN_NO_ERROR && told.kind <= VORN_TOO_LARGE, "errors have their kinds");
  require(vorn_error_offset(answer) <= textLength, "an error is inside the text");
  require(vorn_expression_end(answer) <= textLength, "an expression ends inside the text");
  const auto string = [&](auto inUtf8, auto inUtf16, auto... places) {
    std::size_t bytes = 0;
    std::size_t units = 0;
    const char* const utf8 = inUtf8(answer, places..., &bytes);
    const std::uint16_t* const utf16 = inUtf16(answer, places..., &units);
    if (isUtf16) {
      requireString(utf16, units);
      require(utf8 == nullptr && bytes == 0, "a string is in the encoding of the question");
    } else {
      requireString(utf8, bytes);
      require(utf16 == nullptr && units == 0, "a string is in the encoding of the question");
    }
  };
  string(vorn_error_message_utf8, vorn_error_message_utf16);
  string(vorn_error_element_utf8, vorn_error_element_utf16);
  told.numbers.push_back(vorn_column_count(answer));
  for (std::size_t i = 0; i != vorn_column_count(answer); ++i) {
    string(vorn_column_name_utf8, vorn_column_name_utf16, i);
    told.numbers.push_back(static_cast<std::size_t>(vorn_column_type(answer, i)));
  }
  for (std::size_t i = 0; i != vorn_variable_count(answer); ++i) {
    string(vorn_variable_name_utf8, vorn_variable_name_utf16, i);
    for (std::size_t j = 0; j != vorn_written_form_count(answer, i); ++j) {
      string(vorn_written_form_utf8, vorn_written_form_utf16, i, j);
    }
    for (std::size_t j = 0; j != vorn_access_count(answer, i); ++j) {
      told.numbers.push_back(vorn_property_count(answer, i, j));
      for (std::size_t k = 0; k != vorn_property_count(answer, i, j); ++k) {
        string(vorn_property_utf8, vorn_property_utf16, i, j, k);
      }
      for (std::size_t k = 0; k != vorn_label_count(answer, i, j); ++k) {
        string(vorn_label_utf8, vorn_label_utf16, i, j, k);
      }
    }
  }
  vorn_release(answer);
  return told;
}

void requireSame(const Told& one, const Told& other) {
  require(one.kind == other.kind, "both encodings give the same kind of answer");
  require(one.numbers == other.numbers, "both encodings give the same answer");
}

}  // namespace

// The input is a text in UTF-8, well formed or not. The target asks every question about it; the
// names to rename are pieces of the text.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text = bytesOf(data, size);
  const vorn::WideString wide = wideFrom(text);
  const std::vector<std::uint16_t> units(wide.begin(), wide.end());
  requireSame(toldBy(vorn_columns_utf8(text.data(), size), size, false),
              toldBy(vorn_columns_utf16(units.data(), units.size()), units.size(), true));
  requireSame(toldBy(vorn_usages_utf8(text.data(), size), size, false),
              toldBy(vorn_usages_utf16(units.data(), units.size()), units.size(), true));
  const std::size_t half = size / 2;
  const std::array<vorn_rename_pair_utf8, 2> pairs = {
      {{"n", 1, text.data(), half}, {text.data(), half, text.data() + half, size - half}}};
  vorn_answer* const renamed = vorn_rename_utf8(text.data(), size, pairs.data(), pairs.size());
  if (vorn_error_kind(renamed) == VORN_NO_ERROR) {
    std::size_t length = 0;
    const char* const result = vorn_renamed_utf8(renamed, &length);
    requireString(result, length);
  }
  toldBy(renamed, size, false);
  return 0;
}
