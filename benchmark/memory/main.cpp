// Prints the allocations of each call and its peak as comma-separated values:
//
//   vorn-memory TEXTS SUBJECT...

#include <iomanip>
#include <iostream>
#include <string>
#include <vector>

#include "CountingHeap.h"
#include "RunProgram.h"
#include "corpus/Corpus.h"
#include "subjects/Subject.h"

namespace {

void measureCall(const Subject& subject, Subject::Function function, const Text& text) {
  subject.call(function, text);
  resetPeak();
  const Heap before = heap();
  subject.call(function, text);
  const Heap after = heap();
  std::cout << std::quoted(text.group) << ',' << nameOf(function) << ',' << subject.name << ','
            << text.utf8.size() << ',' << after.allocations - before.allocations << ','
            << after.bytes - before.bytes << ',' << after.peak - before.live << '\n';
}

void measureCalls(const std::vector<Text>& texts, const Subject& subject) {
  for (const Text& text : texts) {
    for (const Subject::Function function : functionsFor(text)) {
      measureCall(subject, function, text);
    }
  }
}

void run(const std::vector<std::string>& arguments) {
  std::cout << "group,function,subject,bytes,allocations,allocated,peak\n";
  const std::vector<Text> texts = readTexts(arguments.at(0));
  for (std::size_t i = 1; i < arguments.size(); ++i) {
    measureCalls(texts, *makeSubject(arguments[i]));
  }
}

}  // namespace

int main(int argc, char** argv) {
  return runProgram("vorn-memory", [&] { run({argv + 1, argv + argc}); });
}
