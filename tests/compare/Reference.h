#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "Answers.h"
#include "Subject.h"

namespace compare {

/// What the bare pipeline makes of a text: the generated recognisers and the runtime's own token
/// stream, prediction and walker, with the first error fatal. All texts of a process share one set
/// of prediction tables, so one thread at a time may use it.
class Reference {
 public:
  /// The text is well-formed UTF-8 and outlives this.
  Reference(std::string_view utf8, Entry entry);
  ~Reference();
  Reference(const Reference&) = delete;
  Reference& operator=(const Reference&) = delete;

  [[nodiscard]] const Parse& parse() const { return found; }

  /// "line L:C " and the runtime's message, or nothing if there is no error. A filter has none
  /// either if its expression ends before the text does.
  [[nodiscard]] const std::string& error() const { return firstError; }

  /// Whether more text may put right what is wrong: the first error is the end of the text.
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
