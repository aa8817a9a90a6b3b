#pragma once

#include <exception>
#include <iostream>

/// Runs a program that measures and returns the result of its main(). Reports an exception.
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
