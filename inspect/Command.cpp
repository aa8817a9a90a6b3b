#include "Command.h"

#include <exception>

#include "DisplayText.h"
#include "Failure.h"
#include "Request.h"

namespace inspect {

Answer refusal(const Failure& failure) { return {toJson(failure), false}; }

Answer answerTo(const Json& request, const Command& command) {
  try {
    return command.answer(request);
  } catch (const std::exception& exception) {
    return refusal(failureOf(exception));
  }
}

Answer answerToLine(const std::string& line, const Command& command) {
  try {
    const Json request = parseRequest(line);
    Answer answer = answerTo(request, command);
    if (request.is_object() && request.contains("id")) {
      answer.id = memberAsWritten(line, "id");
    }
    return answer;
  } catch (const std::exception& exception) {
    return refusal(failureOf(exception));
  }
}

std::string toLine(const Answer& answer) {
  // Should a message quote bytes that are not UTF-8, they must not stop a batch.
  std::string json = answer.json.dump(-1, ' ', false, OrderedJson::error_handler_t::replace);
  if (!answer.id.empty()) {
    json.insert(1, R"("id":)" + answer.id + ',');
  }
  return escapeControlsInJson(json) + '\n';
}

}  // namespace inspect
