#pragma once

#include <string>

#include "Failure.h"
#include "Request.h"

namespace inspect {

struct Answer {
  OrderedJson json;
  bool analysed;
  std::string id = {};  ///< the request's, as JSON; empty if it has none
};

/// One of the library's questions, as it is asked on the command line. A request is a JSON object,
/// whether it came as such or was put together from arguments.
struct Command {
  const char* name;
  const char* description;
  const char* textMember;  ///< the member of a request that holds the text
  const char* textNoun;    ///< what that text is called
  bool takesRenames;       ///< whether a request has the member "renames"
  const char* example;     ///< a request and its answer

  // Both throw what the library throws, and InputError for a request of another form.
  Answer (*answer)(const Json& request);
  std::string (*report)(const Json& request);  ///< for people
};

/// Which columns a query returns.
extern const Command columnsCommand;

/// Which variables a property filter uses, and what it reads from each.
extern const Command usagesCommand;

/// What a property filter reads like after some of its variables are renamed.
extern const Command renameCommand;

/// The command's answer, or the reason why there is none.
Answer answerTo(const Json& request, const Command& command);

/// The answer that tells why there is no other.
Answer refusal(const Failure& failure);

/// The answer to one line of JSON Lines.
Answer answerToLine(const std::string& line, const Command& command);

/// The answer as JSON in UTF-8, with a line feed after it.
std::string toLine(const Answer& answer);

}  // namespace inspect
