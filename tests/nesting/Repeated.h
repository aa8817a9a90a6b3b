#pragma once

#include <cstddef>
#include <string>

/// The text, that many times over.
inline std::string repeated(const std::string& text, std::size_t times) {
  std::string all;
  for (std::size_t i = 0; i < times; ++i) {
    all += text;
  }
  return all;
}
