#include "Command.h"

#include <exception>

#include "DisplayText.h"
#include "Failure.h"
#include "Request.h"

namespace inspect {

Answer answerTo(const Json& request, const Command& command) {
  try {
    return command.answer(request);
  } catch (const std::exception& exception) {
    return {toJson(failureOf(exception)), false};
  }
}

Answer answerToLine(const std::string& line, const Command& command) {
  try {
    return answerTo(parseRequest(line), command);
  } catch (const InputError& error) {
    return {toJson(failureOf(error)), false};
  }
}

std::string toLine(const Answer& answer) {
  // Should a message quote bytes that are not UTF-8, they must not stop a batch.
  return escapeControlsInJson(
             answer.json.dump(-1, ' ', false, OrderedJson::error_handler_t::replace)) +
         '\n';
}

}  // namespace inspect
