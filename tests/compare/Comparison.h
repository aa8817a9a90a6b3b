#pragma once

#include <string>
#include <string_view>

#include "Subject.h"
#include "vorn/vorn.h"

namespace compare {

/// The result of comparing one text.
struct Verdict {
  std::string difference;  // describes both sides; empty if they agree
  bool accepted = false;
  bool equalMessage = false;    // both refuse it as a filter, with the same message
  bool refusedByBound = false;  // the library refuses it because of a bound
  bool mayContinue = false;     // refused, but with more text it may be accepted
  Parse parse;                  // the bare pipeline's
};

/// Compares the parser under test with the bare pipeline, and the library's answers with those from
/// the tree of the bare pipeline. The text must be well-formed UTF-8.
Verdict compareText(std::string_view utf8, Entry entry);

/// Whether all functions refuse a text that is not well-formed UTF-16.
bool isRefusedByAll(const vorn::WideString& illFormed);

}  // namespace compare
