#pragma once

#include <string>
#include <string_view>

#include "vorn/vorn.h"

/// The conversions between UTF-16 and UTF-8 of the host platform's core library.
namespace StringUtf8ImplDetail {

/// Throws an exception derived from std::exception if `text` holds an unpaired surrogate.
std::string StringWideCharToUtf8Impl(std::basic_string_view<vorn::WideChar> text);

/// Throws an exception derived from std::exception if `text` is not well-formed UTF-8.
vorn::WideString StringUtf8ToWideCharImpl(std::string_view text);

}  // namespace StringUtf8ImplDetail
