// vorn-bench COMMAND ARGUMENT...: runs one of the measurements in Commands.h.

#include <array>
#include <cstddef>
#include <iostream>
#include <string_view>

#include "Commands.h"
#include "RunProgram.h"

namespace {

struct Command {
  std::string_view name;
  std::string_view arguments;
  std::size_t required;  // arguments
  void (*run)(const Arguments&);
};

constexpr std::array<Command, 6> commands = {{
    {"times", "TEXTS SUBJECT... [--benchmark_...]", 2, measureTimes},
    {"growth", "TEXTS SUBJECT...", 2, measureGrowth},
    {"first-call", "SUBJECT", 1, measureFirstCall},
    {"instructions", "TEXTS SUBJECT", 2, countInstructions},
    {"soak", "LIBRARY MILLIONS", 2, soak},
    {"large-texts", "LIBRARY", 1, measureLargeTexts},
}};

int printUsage() {
  for (const Command& command : commands) {
    std::cerr << "vorn-bench " << command.name << ' ' << command.arguments << '\n';
  }
  return 1;
}

}  // namespace

int main(int argc, char** argv) {
  const Arguments arguments(argv + 1, argv + argc);
  for (const Command& command : commands) {
    if (!arguments.empty() && arguments.front() == command.name &&
        arguments.size() > command.required) {
      return runProgram("vorn-bench", [&] {
        command.run({arguments.begin() + 1, arguments.end()});
      });
    }
  }
  return printUsage();
}
