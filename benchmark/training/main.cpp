// Runs each text of standard input through every function that it is for, several times: most calls
// of a host find the parser's tables filled, some do not. Whether the calls succeed does not matter
// here, because errors are part of what is trained.
//
//   corpus.py --training | vorn-train

#include <vorn/vorn.h>

#include <exception>
#include <iostream>

#include "RunProgram.h"
#include "corpus/Corpus.h"

namespace {

constexpr int rounds = 10;

void run(const Text& text) {
  if (text.entry == Text::Entry::Query) {
    std::vector<std::pair<vorn::WideString, vorn::CypherType>> columns;
    vorn::GetOutputNamesAndTypes(text.utf16, columns);
    return;
  }
  try {
    vorn::ReplaceVariableNamesInPropertyFilterOCExpression(text.utf16, text.renames);
    vorn::GetVariableUsagesInPropertyFilterOCExpression(text.utf16);
  } catch (const std::exception&) {  // NOLINT(bugprone-empty-catch): see above
  }
}

}  // namespace

int main() {
  return runProgram("vorn-train", [] {
    const std::vector<Text> texts = readTexts(std::cin);
    for (int round = 0; round < rounds; ++round) {
      for (const Text& text : texts) {
        run(text);
      }
    }
  });
}
