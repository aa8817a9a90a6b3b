#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "Subject.h"

namespace compare {

/// Counts which alternatives of the grammar's decisions accepted texts have taken. A loop counts as
/// left at once, after one round and after more.
class Coverage {
 public:
  Coverage();
  ~Coverage();
  Coverage(const Coverage&) = delete;
  Coverage& operator=(const Coverage&) = delete;

  /// Parses the text once more, by the runtime's interpreter of the grammar's network.
  void add(std::string_view accepted, Entry entry);

  /// A number for each alternative.
  [[nodiscard]] const std::vector<std::uint32_t>& counts() const;
  [[nodiscard]] std::string nameOf(std::size_t alternative) const;

 private:
  class Recorder;
  class Simulator;

  std::unique_ptr<Recorder> recorder;
};

}  // namespace compare
