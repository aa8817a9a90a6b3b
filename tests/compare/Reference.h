#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "Answers.h"
#include "Subject.h"

namespace compare {

/// The answers of the bare pipeline to a text: the generated recognisers and the runtime's own
/// token stream, prediction and walker, with the first error fatal. All texts of a process share
/// one prediction cache, so only one thread at a time may use this class.
class Reference {
 public:
  /// The text must be well-formed UTF-8 and outlive the object.
  Reference(std::string_view utf8, Entry entry);
  ~Reference();
  Reference(const Reference&) = delete;
  Reference& operator=(const Reference&) = delete;

  [[nodiscard]] const Parse& parse() const { return found; }

  /// "line L:C " and the runtime's message; empty if there is no error. Text behind a complete
  /// expression is no error of a filter.
  [[nodiscard]] const std::string& error() const { return firstError; }

  /// Whether the text may be right with more text behind it: its end is the first error.
  [[nodiscard]] bool mayContinue() const { return errorAtEnd; }

  [[nodiscard]] Columns columns() const;
  [[nodiscard]] Usages usages() const;
  [[nodiscard]] Renamed renamed(const Renames& renames) const;

 private:
  struct Pipeline;

  void lex(std::string_view utf8);
  void readTree(Entry entry);

  std::unique_ptr<Pipeline> pipeline;
  Parse found;
  std::string firstError;
  bool errorAtEnd = false;
};

}  // namespace compare
