#pragma once

#include <nlohmann/json.hpp>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

namespace inspect {

/// For reading: members are found quickly, however many there are.
using Json = nlohmann::json;

/// For writing: members stay in the order in which they are put in.
using OrderedJson = nlohmann::ordered_json;

/// A request that is not what the command takes.
class InputError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// A request that would be one if its text were well formed.
class NotWellFormed : public InputError {
 public:
  NotWellFormed(const std::string& message, std::string mendedLine)
      : InputError(message), mendedLine_(std::move(mendedLine)) {}

  /// The line with U+FFFD in place of what is wrong.
  [[nodiscard]] const std::string& mendedLine() const { return mendedLine_; }

 private:
  std::string mendedLine_;
};

/// The JSON value that one line holds. Throws InputError, and NotWellFormed where UTF-8 is broken
/// or an escape is half a surrogate pair, but the line is JSON otherwise.
Json parseRequest(const std::string& line);

/// The value of a member, without any white space. The line must hold an object that has the
/// member. Numbers stay as they are written, and nesting takes no stack.
std::string memberAsWritten(std::string_view line, std::string_view name);

/// The string member of that name. Throws InputError if the request is no object or has no such
/// member.
const std::string& textMember(const Json& request, std::string_view name);

}  // namespace inspect
