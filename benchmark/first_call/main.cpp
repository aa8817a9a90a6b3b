// Measures a process that has just begun, in microseconds, as comma-separated values:
//
//   vorn-first-call TEXTS SUBJECT
//
// loading the subject, its first call, its second one, all texts for the first time and once more.

#include <iostream>
#include <string>
#include <vector>

#include "RunProgram.h"
#include "corpus/Corpus.h"
#include "subjects/CallTime.h"
#include "subjects/Subject.h"

namespace {

template <typename Action>
double microsecondsOf(const Action& action) {
  const double start = threadSeconds();
  action();
  return 1e6 * (threadSeconds() - start);
}

void callAll(const Subject& subject, const std::vector<Text>& texts) {
  for (const Text& text : texts) {
    subject.call(functionsFor(text).front(), text);
  }
}

void run(const std::vector<std::string>& arguments) {
  const std::vector<Text> texts = readTexts(arguments.at(0));
  std::unique_ptr<Subject> subject;
  const double load = microsecondsOf([&] { subject = makeSubject(arguments.at(1)); });
  const Text first{"first", Text::Entry::Query, "RETURN 1 AS one", u"RETURN 1 AS one", {}};
  const auto callFirst = [&] { subject->call(functionsFor(first).front(), first); };
  const double firstCall = microsecondsOf(callFirst);
  const double secondCall = microsecondsOf(callFirst);
  const double cold = microsecondsOf([&] { callAll(*subject, texts); });
  const double warm = microsecondsOf([&] { callAll(*subject, texts); });
  std::cout << load << ',' << firstCall << ',' << secondCall << ',' << cold << ',' << warm << '\n';
}

}  // namespace

int main(int argc, char** argv) {
  return runProgram("vorn-first-call", [&] { run({argv + 1, argv + argc}); });
}
