#include <algorithm>
#include <iomanip>
#include <iostream>
#include <string>
#include <vector>

#include "Commands.h"
#include "corpus/Corpus.h"
#include "subjects/CallTime.h"
#include "subjects/Subject.h"

namespace {

using Subjects = std::vector<std::unique_ptr<Subject>>;

// Times the subjects in turn, until there are enough times for a median or they have taken long.
std::vector<std::vector<double>> timesOf(const Subjects& subjects, Subject::Function function,
                                         const Text& text) {
  constexpr std::size_t enough = 21;
  constexpr double longTime = 0.5;
  std::vector<std::vector<double>> times(subjects.size());
  double taken = 0;
  while (times.back().size() < enough && (taken < longTime || times.back().size() < 3)) {
    for (std::size_t i = 0; i < subjects.size(); ++i) {
      times[i].push_back(secondsOf(*subjects[i], function, text));
      taken += times[i].back();
    }
  }
  return times;
}

void measure(const Subjects& subjects, Subject::Function function, const Text& text) {
  for (const auto& subject : subjects) {
    subject->call(function, text);
  }
  std::vector<std::vector<double>> times = timesOf(subjects, function, text);
  for (std::size_t i = 0; i < subjects.size(); ++i) {
    std::sort(times[i].begin(), times[i].end());
    std::cout << std::quoted(text.group) << ',' << nameOf(function) << ',' << subjects[i]->name
              << ',' << text.utf8.size() << ',' << times[i][times[i].size() / 2] << ','
              << times[i].front() << '\n';
  }
}

}  // namespace

void measureGrowth(const Arguments& arguments) {
  Subjects subjects;
  for (std::size_t i = 1; i < arguments.size(); ++i) {
    subjects.push_back(makeSubject(arguments[i]));
  }
  std::cout << "group,function,subject,bytes,median,fastest\n";
  for (const Text& text : readTexts(arguments.at(0))) {
    for (const Subject::Function function : functionsFor(text)) {
      measure(subjects, function, text);
    }
  }
}
