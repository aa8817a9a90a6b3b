#include <exception>
#include <ios>
#include <iostream>

#include "CommandLine.h"

namespace {

constexpr int failed = 2;

int fail(const char* sentence) {
  std::cerr << "vorn-inspect: " << sentence << '\n';
  return failed;
}

}  // namespace

int main(int argc, char** argv) {
  // Without it the standard library's own buffers would hide that a read failed.
  std::ios::sync_with_stdio(false);
  try {
    return inspect::runCommandLine(argc, argv);
  } catch (const std::exception& exception) {
    return fail(exception.what());
  }
}
