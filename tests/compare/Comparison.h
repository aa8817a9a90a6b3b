#pragma once

#include <string>
#include <string_view>

#include "Subject.h"
#include "vorn/vorn.h"

namespace compare {

/// What came out of comparing one text.
struct Verdict {
  std::string difference;  // what the two sides say, nothing if they say the same
  bool accepted = false;
  bool equalMessage = false;    // both refuse it as a filter and say the same
  bool refusedByBound = false;  // the library does not look so deep
  bool mayContinue = false;     // refused, but more text may put it right
  Parse parse;                  // the bare pipeline's
};

/// Compares the parser under test with the bare pipeline, and the library's answers with those that
/// the bare pipeline's tree gives. The text is well-formed UTF-8.
Verdict compareText(std::string_view utf8, Entry entry);

/// Whether all functions refuse a text that is not well-formed UTF-16.
bool isRefusedByAll(const vorn::WideString& illFormed);

}  // namespace compare
