#include <iostream>
#include <string>
#include <vector>

#include "Commands.h"
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

}  // namespace

void measureFirstCall(const Arguments& arguments) {
  std::unique_ptr<Subject> subject;
  const double load = microsecondsOf([&] { subject = makeSubject(arguments.at(0)); });
  const Text text{"first", Text::Entry::Query, "RETURN 1 AS one", u"RETURN 1 AS one", {}};
  const auto call = [&] { subject->call(functionsFor(text).front(), text); };
  const double first = microsecondsOf(call);
  const double second = microsecondsOf(call);
  std::cout << subject->name << ',' << load << ',' << first << ',' << second << '\n';
}
