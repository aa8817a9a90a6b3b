// Measures a process that has just begun, in microseconds, as comma-separated values:
//
//   vorn-first-call SUBJECT
//
// loading the subject, its first call and its second one.

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

void run(const std::vector<std::string>& arguments) {
  std::unique_ptr<Subject> subject;
  const double load = microsecondsOf([&] { subject = makeSubject(arguments.at(0)); });
  const Text text{"first", Text::Entry::Query, "RETURN 1 AS one", u"RETURN 1 AS one", {}};
  const auto call = [&] { subject->call(functionsFor(text).front(), text); };
  const double first = microsecondsOf(call);
  const double second = microsecondsOf(call);
  std::cout << subject->name << ',' << load << ',' << first << ',' << second << '\n';
}

}  // namespace

int main(int argc, char** argv) {
  return runProgram("vorn-first-call", [&] { run({argv + 1, argv + argc}); });
}
