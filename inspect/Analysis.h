#pragma once

#include <vorn/vorn_c.h>

#include <cstddef>
#include <memory>
#include <string_view>

namespace inspect {

struct AnalysisRelease {
  void operator()(vorn_answer* answer) const { vorn_release(answer); }
};

/// The library's answer to one question.
using Analysis = std::unique_ptr<vorn_answer, AnalysisRelease>;

/// The string that an accessor of the library, such as vorn_column_name_utf8, finds at these
/// indices. It belongs to the analysis.
template <typename Accessor, typename... Indices>
std::string_view textOf(const Analysis& analysis, Accessor accessor, Indices... indices) {
  std::size_t length = 0;
  const char* const first = accessor(analysis.get(), indices..., &length);
  return {first, length};
}

}  // namespace inspect
