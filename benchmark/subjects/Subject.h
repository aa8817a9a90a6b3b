#pragma once

#include <memory>
#include <string>
#include <vector>

#include "corpus/Corpus.h"

/// A thing to measure. All subjects are called alike, so that their calls can be interleaved.
class Subject {
 public:
  enum class Function { Columns, Usages, Renaming };

  Subject(const Subject&) = delete;
  Subject& operator=(const Subject&) = delete;
  Subject(Subject&&) = delete;
  Subject& operator=(Subject&&) = delete;
  virtual ~Subject() = default;

  /// Does the whole work of one call and drops the answer. A text with an error is no failure.
  virtual void call(Function function, const Text& text) const = 0;

  const std::string name;

 protected:
  explicit Subject(std::string subjectName) : name(std::move(subjectName)) {}
};

/// The functions that take such a text.
inline const std::vector<Subject::Function>& functionsFor(const Text& text) {
  static const std::vector<Subject::Function> forQueries = {Subject::Function::Columns};
  static const std::vector<Subject::Function> forFilters = {Subject::Function::Usages,
                                                            Subject::Function::Renaming};
  return text.entry == Text::Entry::Query ? forQueries : forFilters;
}

inline const char* nameOf(Subject::Function function) {
  switch (function) {
    case Subject::Function::Columns:
      return "columns";
    case Subject::Function::Usages:
      return "usages";
    default:
      return "renaming";
  }
}

/// "bare" gives the pipeline in this program; everything else is the path of a shared library.
std::unique_ptr<Subject> makeSubject(const std::string& bareOrPath);
