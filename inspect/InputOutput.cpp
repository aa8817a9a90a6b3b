#include "InputOutput.h"

#include <utf8.h>

#include <array>
#include <cerrno>
#include <filesystem>
#include <iostream>
#include <iterator>
#include <system_error>

namespace inspect {

namespace {

std::string readAll(std::istream& in, const std::string& name) {
  constexpr std::size_t chunkSize = 65536;
  std::array<char, chunkSize> chunk{};
  std::string text;
  while (in.read(chunk.data(), chunk.size()) || in.gcount() > 0) {
    text.append(chunk.data(), static_cast<std::size_t>(in.gcount()));
  }
  if (in.bad() || !in.eof()) {
    failToRead(name);
  }
  return text;
}

}  // namespace

void failToRead(const std::string& name) {
  throw UsageError(name + " cannot be read (" + std::generic_category().message(errno) +
                   "); name a file that can.");
}

std::ifstream openFile(const std::string& path) {
  std::ifstream file(std::filesystem::u8path(path), std::ios::binary);
  if (!file) {
    failToRead("'" + path + "'");
  }
  return file;
}

std::string readFile(const std::string& path) {
  std::ifstream file = openFile(path);
  return readAll(file, "'" + path + "'");
}

std::string readStandardInput() { return readAll(std::cin, "standard input"); }

void requireUtf8(const std::string& text, const std::string& what) {
  const auto bad = utf8::find_invalid(text.begin(), text.end());
  if (bad != text.end()) {
    throw UsageError(what + " is not UTF-8 (see byte " +
                     std::to_string(std::distance(text.begin(), bad) + 1) +
                     "); convert it and try again.");
  }
}

void writeOut(std::string_view text) {
  if (!(std::cout << text << std::flush)) {
    throw UsageError("standard output cannot be written; direct it to where there is room.");
  }
}

}  // namespace inspect
