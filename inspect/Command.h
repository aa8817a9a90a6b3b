#pragma once

#include <string>
#include <string_view>

#include "Analysis.h"
#include "Failure.h"
#include "Request.h"

namespace inspect {

/// A command, which asks one of the library's questions. A request is a JSON object: a line of a
/// batch, or put together from arguments.
struct Command {
  const char* name;
  const char* description;
  const char* textMember;  ///< the member of a request that holds the text
  const char* textNoun;    ///< what that text is called
  bool takesFilter;        ///< false for a query, whose answer has a member "status"
  bool takesRenames;       ///< whether a request has the member "renames"
  const char* example;     ///< a request and its answer

  Analysis (*ask)(const Json& request);  ///< Throws InputError for a request of another form.

  // Both take an analysis without an error.
  OrderedJson (*json)(const Analysis& analysis);
  std::string (*report)(const Analysis& analysis);  ///< for people
};

/// Which columns a query returns.
extern const Command columnsCommand;

/// Which variables a property filter uses, and what it reads from each.
extern const Command usagesCommand;

/// What a property filter reads like after some of its variables are renamed.
extern const Command renameCommand;

/// The end of the text that the answer leaves out.
std::string_view droppedFrom(std::string_view text, const Analysis& analysis,
                             const Command& command);

struct JsonAnswer {
  std::string line;  ///< an object, with a line feed behind it
  bool analysed;
};

JsonAnswer answerTo(const Json& request, const Command& command);

/// The answer to a line of JSON Lines, with the request's id.
JsonAnswer answerToLine(const std::string& line, const Command& command);

/// The answer to a line that is no request.
JsonAnswer refusal(const Failure& failure);

}  // namespace inspect
