#pragma once

#include <memory>
#include <string>
#include <vector>

namespace inspect {

// The parts that differ from system to system.

/// The arguments in UTF-8, the name of the program first. Throws UsageError when the system gave
/// them in another encoding and one cannot be converted.
std::vector<std::string> argumentsInUtf8(int argc, const char* const* argv);

/// While the object lives, std::cin, std::cout and std::cerr carry UTF-8: a file or another program
/// gets and gives every byte as it is, a terminal or console the characters.
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

/// Whether the stream goes to a terminal or a console.
bool outputIsWatched();
bool errorsAreWatched();

}  // namespace inspect
