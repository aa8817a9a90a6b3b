#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "vorn/vorn_c.h"

/// The C interface as tests see it: all that an answer tells, in UTF-8 whatever was asked in.
namespace c_interface {

enum class Encoding { Utf8, Utf16 };

std::ostream& operator<<(std::ostream& out, Encoding encoding);

enum class Kind { Columns, Usages, Renaming };

using Renames = std::vector<std::pair<std::string, std::string>>;

struct Access {
  std::vector<std::string> properties;
  std::vector<std::string> labels;
};

struct Variable {
  std::string name;
  std::vector<std::string> writtenForms;
  std::vector<Access> accesses;
};

struct Told {
  std::int32_t error = -1;
  std::size_t line = 0;
  std::size_t column = 0;
  std::size_t offset = 0;
  std::string message;
  std::string element;
  std::vector<std::pair<std::string, std::int32_t>> columns;
  std::vector<Variable> variables;
  std::optional<std::string> renamed;
  std::size_t expressionEnd = 0;
};

/// Everything in one line.
std::string lineOf(const Told& told);
std::string lineOf(const Variable& variable);

/// Asks and releases the answer. The text and the names, well-formed UTF-8, are brought into the
/// encoding before.
Told ask(Encoding encoding, Kind kind, std::string_view text, const Renames& renames = {});

struct Release {
  void operator()(vorn_answer* answer) const { vorn_release(answer); }
};
using Answer = std::unique_ptr<vorn_answer, Release>;

/// The length of well-formed UTF-8 in units of the encoding.
std::size_t lengthIn(Encoding encoding, std::string_view text);

}  // namespace c_interface
