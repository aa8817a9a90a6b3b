#include <valgrind/callgrind.h>

#include <string>

#include "Commands.h"
#include "corpus/Corpus.h"
#include "subjects/Subject.h"

namespace {

// A single call might happen to be the one in which the heap tidies up.
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
      subject.call(function, texts[i]);  // tidies the heap after the text before
      CALLGRIND_ZERO_STATS;
      for (int call = 0; call < callsPerCount; ++call) {
        subject.call(function, texts[i]);
      }
      CALLGRIND_DUMP_STATS_AT(name.c_str());
    }
  }
}

}  // namespace

void countInstructions(const Arguments& arguments) {
  const std::vector<Text> texts = readTexts(arguments.at(0));
  const std::unique_ptr<Subject> subject = makeSubject(arguments.at(1));
  fillTables(texts, *subject);
  CALLGRIND_START_INSTRUMENTATION;
  count(texts, *subject);
  CALLGRIND_STOP_INSTRUMENTATION;
}
