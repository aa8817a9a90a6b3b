#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "support/Text.h"
#include "vorn/vorn.h"

/// Columns with UTF-8 names, as a test writes them.
using Columns = std::vector<std::pair<std::string, vorn::CypherType>>;

// Short names of the types, so that expected columns are easy to read.
constexpr vorn::CypherType unknown = vorn::CypherType::Unknown;
constexpr vorn::CypherType node = vorn::CypherType::Node;
constexpr vorn::CypherType relationship = vorn::CypherType::Relationship;
constexpr vorn::CypherType path = vorn::CypherType::Path;
constexpr vorn::CypherType nodeOrRelationship = vorn::CypherType::NodeOrRelationship;

/// The answer of GetOutputNamesAndTypes to one query.
struct ColumnsAnswer {
  std::int32_t status;
  Columns columns;

  friend bool operator==(const ColumnsAnswer& left, const ColumnsAnswer& right) {
    return left.status == right.status && left.columns == right.columns;
  }
};

inline ColumnsAnswer analyse(const vorn::WideString& query) {
  std::vector<std::pair<vorn::WideString, vorn::CypherType>> columns;
  ColumnsAnswer answer{vorn::GetOutputNamesAndTypes(query, columns), {}};
  for (const auto& [name, type] : columns) {
    answer.columns.emplace_back(narrow(name), type);
  }
  return answer;
}

inline ColumnsAnswer analyse(std::string_view query) { return analyse(wide(query)); }

/// The answer that a query with these columns gets.
inline ColumnsAnswer answered(Columns columns) { return {0, std::move(columns)}; }

/// The answer to a text that is no query.
inline ColumnsAnswer refused() { return {1, {}}; }

inline std::ostream& operator<<(std::ostream& out, const ColumnsAnswer& answer) {
  out << "status " << answer.status;
  for (const auto& [name, type] : answer.columns) {
    out << ", " << name << " (" << static_cast<std::int32_t>(type) << ")";
  }
  return out;
}
