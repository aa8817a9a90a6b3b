// Counts the instructions of every single call. Runs under callgrind, which writes one dump for
// each and names it by what was called:
//
//   valgrind --tool=callgrind --instr-atstart=no vorn-count-instructions TEXTS SUBJECT...

#include <valgrind/callgrind.h>

#include <string>

#include "RunProgram.h"
#include "corpus/Corpus.h"
#include "subjects/Subject.h"

namespace {

// One call alone may be the one in which the heap tidies up.
constexpr int callsPerCount = 2;

void fillTables(const std::vector<Text>& texts, const Subject& subject) {
  for (const Text& text : texts) {
    for (const Subject::Function function : functionsFor(text)) {
      subject.call(function, text);
    }
  }
}

void count(const std::vector<Text>& texts, const Subject& subject) {
  for (std::size_t i = 0; i < texts.size(); ++i) {
    for (const Subject::Function function : functionsFor(texts[i])) {
      const std::string name = subject.name + '\t' + nameOf(function) + '\t' + std::to_string(i);
      subject.call(function, texts[i]);  // sorts what the text before has left on the heap
      CALLGRIND_ZERO_STATS;
      for (int call = 0; call < callsPerCount; ++call) {
        subject.call(function, texts[i]);
      }
      CALLGRIND_DUMP_STATS_AT(name.c_str());
    }
  }
}

void run(const std::vector<std::string>& arguments) {
  const std::vector<Text> texts = readTexts(arguments.at(0));
  for (std::size_t i = 1; i < arguments.size(); ++i) {
    const std::unique_ptr<Subject> subject = makeSubject(arguments[i]);
    fillTables(texts, *subject);
    CALLGRIND_START_INSTRUMENTATION;
    count(texts, *subject);
    CALLGRIND_STOP_INSTRUMENTATION;
  }
}

}  // namespace

int main(int argc, char** argv) {
  return runProgram("vorn-count-instructions", [&] { run({argv + 1, argv + argc}); });
}
