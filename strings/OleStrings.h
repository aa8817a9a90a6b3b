#pragma once

#include <cstddef>
#include <cstdint>

#include "vorn/vorn.h"

/// The string functions of OLE automation: on Windows its own, on other systems counterparts. They
/// have a namespace of their own, so that they do not clash with functions of the host.
namespace vorn::platform {

/// A new BSTR of `length` characters and a terminating zero. The characters are copied from
/// `source` or, if that is null, left uninitialised. The caller owns the BSTR. Null if memory runs
/// out or the length in bytes does not fit in 32 bits.
WideChar* SysAllocStringLen(const WideChar* source, std::size_t length) noexcept;

/// Frees a BSTR, which may be null.
void SysFreeString(WideChar* string) noexcept;

/// The length in characters, 0 for null.
std::uint32_t SysStringLen(WideChar* string) noexcept;

}  // namespace vorn::platform
