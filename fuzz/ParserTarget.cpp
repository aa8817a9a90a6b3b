// The parser under test and the bare pipeline must agree on a text, taken as a query and as a
// filter.

#include <utf8.h>

#include <algorithm>
#include <iostream>

#include "Comparison.h"
#include "Input.h"
#include "Properties.h"

namespace {

// The bare pipeline recurses without any bound.
bool nestsDeeply(std::string_view text) {
  constexpr std::ptrdiff_t most = 100;
  return std::count_if(text.begin(), text.end(),
                       [](char c) { return c == '(' || c == '[' || c == '{'; }) > most;
}

void check(std::string_view text, compare::Entry entry) {
  const compare::Verdict verdict = compare::compareText(text, entry);
  if (!verdict.difference.empty()) {
    std::cerr << text << "\n----\n" << verdict.difference;
  }
  require(verdict.difference.empty(), "both parsers say the same");
}

}  // namespace

// The input is the text.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text = bytesOf(data, size);
  if (!utf8::is_valid(text.begin(), text.end())) {
    require(compare::isRefusedByAll(wideFrom(text)), "ill-formed text is refused");
  } else if (!nestsDeeply(text)) {
    check(text, compare::Entry::Query);
    check(text, compare::Entry::Filter);
  }
  return 0;
}
