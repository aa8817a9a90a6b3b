#pragma once

#include <cstddef>
#include <cstdint>
#include <memory_resource>
#include <optional>
#include <variant>
#include <vector>

#include "vorn/vorn_c.h"

namespace vorn {

/// A string with a zero behind it. Its units belong to the answer, or to the library.
template <typename Unit>
struct Units {
  const Unit* first = nullptr;
  std::size_t length = 0;
};

template <typename Unit>
inline constexpr Unit zero = 0;

template <typename Unit>
constexpr Units<Unit> nothing = {&zero<Unit>, 0};

/// A string in the encoding of the question.
using Text = std::variant<Units<char>, Units<std::uint16_t>>;

struct Column {
  Text name;
  std::int32_t type;
};

struct Access {
  std::vector<Text> properties;
  std::vector<Text> labels;
};

struct Variable {
  Text name;
  std::vector<Text> writtenForms;
  std::vector<Access> accesses;
};

struct Error {
  std::int32_t kind = VORN_NO_ERROR;
  std::size_t line = 0;
  std::size_t column = 0;
  std::size_t offset = 0;
  Text message;
  Text element;
};

/// The static answer for a call that finds no memory, one for each encoding.
template <typename Unit>
vorn_answer& outOfMemory();

}  // namespace vorn

// Declared by the public header, so it is in no namespace.
struct vorn_answer {
  // Holds the strings. It names its source, because the host may set another default resource.
  std::pmr::monotonic_buffer_resource memory{std::pmr::new_delete_resource()};
  vorn::Error error;
  std::vector<vorn::Column> columns;
  std::vector<vorn::Variable> variables;
  std::optional<vorn::Text> renamed;
  std::size_t expressionEnd = 0;
  bool isReleased = false;  // kept in debug builds
};
