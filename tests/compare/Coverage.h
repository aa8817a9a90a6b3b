#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "Subject.h"

namespace compare {

/// Counts how often accepted texts have taken each alternative of the grammar's decisions. For a
/// loop it counts no round, one round and several rounds.
class Coverage {
 public:
  Coverage();
  ~Coverage();
  Coverage(const Coverage&) = delete;
  Coverage& operator=(const Coverage&) = delete;

  /// Parses the text again, with the runtime's interpreter of the grammar's network.
  void add(std::string_view accepted, Entry entry);

  /// By alternative: how often it was taken.
  [[nodiscard]] const std::vector<std::uint32_t>& counts() const;
  [[nodiscard]] std::string nameOf(std::size_t alternative) const;

 private:
  class Recorder;
  class Simulator;

  std::unique_ptr<Recorder> recorder;
};

}  // namespace compare
