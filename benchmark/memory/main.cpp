// Counts memory, as comma-separated values:
//
//   vorn-memory calls TEXTS SUBJECT...   what each warm call allocates, and its peak
//   vorn-memory caches SUBJECT < TEXTS   what is left behind after 1, 2, 4 ... different texts

#include <iomanip>
#include <iostream>
#include <sstream>
#include <stdexcept>
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

// One at a time, so that the texts themselves do not count.
void callWithLine(const Subject& subject, const std::string& line) {
  std::istringstream in(line);
  for (const Text& text : readTexts(in)) {
    for (const Subject::Function function : functionsFor(text)) {
      subject.call(function, text);
    }
  }
}

void measureCaches(const Subject& subject) {
  std::cout << "texts,subject,bytes\n";
  std::string line;
  line.reserve(1U << 20U);  // so that it does not grow while it is read
  const std::size_t before = heap().live;
  for (std::size_t texts = 1; std::getline(std::cin, line); ++texts) {
    callWithLine(subject, line);
    if ((texts & (texts - 1)) == 0 || texts == 1000000) {
      std::cout << texts << ',' << subject.name << ',' << heap().live - before << std::endl;
    }
  }
}

void run(const std::vector<std::string>& arguments) {
  if (arguments.at(0) == "caches") {
    measureCaches(*makeSubject(arguments.at(1)));
    return;
  }
  if (arguments.at(0) != "calls") {
    throw std::invalid_argument("say what to measure: calls or caches");
  }
  std::cout << "group,function,subject,bytes,allocations,allocated,peak\n";
  const std::vector<Text> texts = readTexts(arguments.at(1));
  for (std::size_t i = 2; i < arguments.size(); ++i) {
    measureCalls(texts, *makeSubject(arguments[i]));
  }
}

}  // namespace

int main(int argc, char** argv) {
  return runProgram("vorn-memory", [&] { run({argv + 1, argv + argc}); });
}
