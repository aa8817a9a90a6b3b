#include "Corpus.h"

#include <utf8.h>

#include <fstream>
#include <nlohmann/json.hpp>
#include <stdexcept>

namespace {

vorn::WideString toUtf16(const std::string& utf8) {
  const std::u16string utf16 = utf8::utf8to16(utf8);
  return {utf16.begin(), utf16.end()};
}

Text toText(const nlohmann::json& record) {
  Text text{record.at("group"),
            record.at("entry") == "query" ? Text::Entry::Query : Text::Entry::Filter,
            record.at("text"),
            {},
            {}};
  text.utf16 = toUtf16(text.utf8);
  if (const auto renames = record.find("renames"); renames != record.end()) {
    for (const auto& [oldName, newName] : renames->items()) {
      text.renames.emplace(toUtf16(oldName), toUtf16(newName));
    }
  }
  return text;
}

}  // namespace

std::vector<Text> readTexts(std::istream& in) {
  std::vector<Text> texts;
  for (std::string line; std::getline(in, line);) {
    texts.push_back(toText(nlohmann::json::parse(line)));
  }
  return texts;
}

std::vector<Text> readTexts(const std::string& fileName) {
  std::ifstream in(fileName);
  if (!in) {
    throw std::runtime_error(fileName + " cannot be read");
  }
  return readTexts(in);
}
