#pragma once

#include <cstddef>
#include <cstdint>

#include "vorn/vorn.h"

/// The OLE automation string functions: those of Windows there, counterparts elsewhere. They stand
/// in a namespace of their own so that they meet no function of that name in the host.
namespace vorn::platform {

/// A new BSTR of `length` characters, copied from `source` or left as they come when that is null,
/// and a terminating zero. Null when memory runs out or the length in bytes does not fit in 32
/// bits.
WideChar* SysAllocStringLen(const WideChar* source, std::size_t length) noexcept;

/// Frees a BSTR, which may be null.
void SysFreeString(WideChar* string) noexcept;

/// The length in characters, 0 for null.
std::uint32_t SysStringLen(WideChar* string) noexcept;

}  // namespace vorn::platform
