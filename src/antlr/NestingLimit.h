#pragma once

#include <cstddef>
#include <cstdint>

namespace vorn {

/// Throws std::length_error if a text of these token types may nest too deeply for what is left of
/// the stack.
void refuseTooDeep(const std::uint8_t* tokenTypes, std::size_t count);

}  // namespace vorn
