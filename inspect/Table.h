#pragma once

#include <string>
#include <vector>

namespace inspect {

/// A table in plain text for terminals, aligned by the cells that its texts take there.
class Table {
 public:
  using Row = std::vector<std::string>;

  explicit Table(const Row& headings);

  /// Takes as many texts as there are headings.
  void addRow(const Row& texts);

  [[nodiscard]] std::string text() const;

 private:
  std::vector<Row> rows;
};

}  // namespace inspect
