#include <exception>
#include <iostream>

#include "CommandLine.h"
#include "DisplayText.h"
#include "System.h"

namespace {

constexpr int failed = 2;

int fail(const char* sentence) {
  std::cerr << "vorn-inspect: " << inspect::escapeControls(sentence) << '\n';
  return failed;
}

}  // namespace

int main(int argc, char** argv) {
  const inspect::StandardStreams streams;
  try {
    return inspect::runCommandLine(inspect::argumentsInUtf8(argc, argv));
  } catch (const std::exception& exception) {
    return fail(exception.what());
  }
}
