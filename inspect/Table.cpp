#include "Table.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

#include "DisplayText.h"

namespace inspect {

namespace {

constexpr std::string_view gap = "  ";
constexpr std::string_view ruleMark = "\u2500";

using Widths = std::vector<std::size_t>;

Widths widthsOf(const std::vector<Table::Row>& rows) {
  Widths widths(rows.front().size());
  for (const Table::Row& row : rows) {
    for (std::size_t i = 0; i < row.size(); ++i) {
      widths[i] = std::max(widths[i], displayWidth(row[i]));
    }
  }
  return widths;
}

// The last text is not padded, so that no line ends in blanks.
std::string lineOf(const Table::Row& row, const Widths& widths) {
  std::string line;
  std::size_t missing = 0;
  for (std::size_t i = 0; i < row.size(); ++i) {
    if (!row[i].empty()) {
      line.append(missing, ' ').append(row[i]);
      missing = 0;
    }
    missing += widths[i] - displayWidth(row[i]) + gap.size();
  }
  return line + '\n';
}

std::string ruleOf(const Widths& widths) {
  Table::Row rules;
  for (const std::size_t width : widths) {
    std::string& rule = rules.emplace_back();
    for (std::size_t i = 0; i < width; ++i) {
      rule += ruleMark;
    }
  }
  return lineOf(rules, widths);
}

}  // namespace

Table::Table(const Row& headings) { addRow(headings); }

void Table::addRow(const Row& texts) {
  Row& row = rows.emplace_back();
  for (const std::string& text : texts) {
    row.push_back(escapeControls(text));
  }
}

std::string Table::text() const {
  const Widths widths = widthsOf(rows);
  std::string lines = lineOf(rows.front(), widths) + ruleOf(widths);
  for (std::size_t i = 1; i < rows.size(); ++i) {
    lines += lineOf(rows[i], widths);
  }
  return lines;
}

}  // namespace inspect
