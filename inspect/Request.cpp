#include "Request.h"

namespace inspect {

Json parseRequest(const std::string& line) {
  // The parser's own messages repeat the text that it could not read, however long that is.
  try {
    return Json::parse(line);
  } catch (const Json::parse_error& error) {
    throw InputError("The line is no JSON text in UTF-8: see byte " + std::to_string(error.byte) +
                     ".");
  } catch (const Json::exception&) {
    throw InputError("The line holds a number that is out of range.");
  }
}

const std::string& textMember(const Json& request, std::string_view name) {
  const auto member = request.find(name);
  if (member == request.end() || !member->is_string()) {
    throw InputError("The line is no JSON object with a string \"" + std::string(name) + "\".");
  }
  return member->get_ref<const std::string&>();
}

}  // namespace inspect
