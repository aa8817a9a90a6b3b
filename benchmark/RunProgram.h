#pragma once

#include <exception>
#include <iostream>

/// What main() of a program that measures returns: runs it, and reports what ends it early.
template <typename Run>
int runProgram(const char* name, const Run& run) {
  try {
    run();
    return 0;
  } catch (const std::exception& error) {
    std::cerr << name << ": " << error.what() << '\n';
    return 1;
  }
}
