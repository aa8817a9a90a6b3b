#include "Command.h"

#include <new>

#include "DisplayText.h"

namespace inspect {

namespace {

std::string toLine(const OrderedJson& answer, const std::string& id) {
  // A message may quote bytes that are not UTF-8. They must not end a batch.
  std::string json = answer.dump(-1, ' ', false, OrderedJson::error_handler_t::replace);
  if (!id.empty()) {
    json.insert(1, R"("id":)" + id + ',');
  }
  return escapeControlsInJson(json) + '\n';
}

// `json` has the members that stand before the error.
JsonAnswer refusal(const Failure& failure, const std::string& id, OrderedJson json = {}) {
  json["error"] = toJson(failure);
  return {toLine(json, id), false};
}

std::string idOf(const Json& request, const std::string& line) {
  return request.is_object() && request.contains("id") ? memberAsWritten(line, "id") : "";
}

JsonAnswer answerTo(const Json& request, const Command& command, const std::string& id) {
  try {
    const Analysis analysis = command.ask(request);
    const std::string& text = textMember(request, command.textMember);
    if (const auto failure = failureOf(analysis, text)) {
      return refusal(*failure, id,
                     command.takesFilter ? OrderedJson() : OrderedJson{{"status", 1}});
    }
    OrderedJson json = command.json(analysis);
    const std::string_view dropped = droppedFrom(text, analysis, command);
    if (!dropped.empty()) {
      json["dropped"] = dropped;
    }
    return {toLine(json, id), true};
  } catch (const InputError& error) {
    return refusal({kinds::input, error.what(), {}}, id);
  }
}

}  // namespace

std::string_view droppedFrom(std::string_view text, const Analysis& analysis,
                             const Command& command) {
  return command.takesFilter ? text.substr(vorn_expression_end(analysis.get()))
                             : std::string_view();
}

JsonAnswer answerTo(const Json& request, const Command& command) {
  return answerTo(request, command, {});
}

JsonAnswer answerToLine(const std::string& line, const Command& command) {
  try {
    const Json request = parseRequest(line);
    return answerTo(request, command, idOf(request, line));
  } catch (const NotWellFormed& error) {
    const std::string& mended = error.mendedLine();
    return refusal({kinds::notWellFormed, error.what(), {}}, idOf(Json::parse(mended), mended));
  } catch (const InputError& error) {
    return refusal({kinds::input, error.what(), {}});
  } catch (const std::bad_alloc&) {
    return refusal({kinds::outOfMemory, "There is no memory for the line or its answer.", {}});
  }
}

JsonAnswer refusal(const Failure& failure) { return refusal(failure, {}); }

}  // namespace inspect
