#pragma once

#include <vorn/vorn.h>

#include <string>
#include <string_view>

namespace inspect {

// The library speaks UTF-16, everything around this program UTF-8. Both functions throw when the
// text is not well formed.

vorn::WideString toUtf16(std::string_view utf8);

std::string toUtf8(const vorn::WideString& utf16);

}  // namespace inspect
