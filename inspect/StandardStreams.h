#pragma once

#include <memory>

namespace inspect {

/// While it lives, std::cin, std::cout and std::cerr carry UTF-8: a file or another program gets
/// and gives every byte as it is, a terminal or console the characters.
class StandardStreams {
 public:
  StandardStreams();
  StandardStreams(const StandardStreams&) = delete;
  StandardStreams(StandardStreams&&) = delete;
  StandardStreams& operator=(const StandardStreams&) = delete;
  StandardStreams& operator=(StandardStreams&&) = delete;
  ~StandardStreams();

 private:
  class Consoles;
  std::unique_ptr<Consoles> consoles;
};

/// Whether somebody watches what is written there.
bool outputIsWatched();
bool errorsAreWatched();

}  // namespace inspect
