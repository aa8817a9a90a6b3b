#pragma once

#include <vorn/vorn.h>

#include <istream>
#include <string>
#include <unordered_map>
#include <vector>

/// One text that corpus.py or shapes.py has written.
struct Text {
  enum class Entry { Query, Filter };

  std::string group;
  Entry entry;
  std::string utf8;
  vorn::WideString utf16;
  std::unordered_map<vorn::WideString, vorn::WideString> renames;  // for a filter
};

/// Reads one JSON object from each line. Throws a std::exception if a line is no text.
std::vector<Text> readTexts(std::istream& in);

/// The same from a file. The exception names the file if it cannot be read.
std::vector<Text> readTexts(const std::string& fileName);
