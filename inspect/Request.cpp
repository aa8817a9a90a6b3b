#include "Request.h"

#include <utf8.h>

#include <algorithm>
#include <cstddef>
#include <iterator>

namespace inspect {

namespace {

constexpr std::string_view whiteSpace = " \t\n\r";
constexpr std::string_view endsOfWords = " \t\n\r{}[]:,";

// Goes through the tokens of well-formed JSON.
class JsonTokens {
 public:
  explicit JsonTokens(std::string_view json) : rest_(json) {}

  // There must be a next token.
  std::string_view next() {
    rest_.remove_prefix(rest_.find_first_not_of(whiteSpace));
    const std::string_view token =
        rest_.substr(0, rest_.front() == '"' ? stringSize() : wordSize());
    rest_.remove_prefix(token.size());
    return token;
  }

 private:
  [[nodiscard]] std::size_t stringSize() const {
    std::size_t i = 1;
    while (rest_[i] != '"') {
      i += rest_[i] == '\\' ? 2 : 1;
    }
    return i + 1;
  }

  [[nodiscard]] std::size_t wordSize() const {
    return std::max<std::size_t>(rest_.find_first_of(endsOfWords), 1);
  }

  std::string_view rest_;
};

int depthChange(std::string_view token) {
  if (token == "{" || token == "[") {
    return 1;
  }
  return token == "}" || token == "]" ? -1 : 0;
}

constexpr std::size_t escapeSize = 6;  // of \u and four digits

// Whether the text begins with the escape of a surrogate that has one of these second digits.
bool beginsWithSurrogate(std::string_view text, std::string_view secondDigits) {
  return text.size() >= escapeSize && text.substr(0, 2) == "\\u" &&
         (text[2] == 'd' || text[2] == 'D') && secondDigits.find(text[3]) != std::string_view::npos;
}

std::string withWholeSurrogatePairs(std::string_view json) {
  constexpr std::string_view high = "89abAB";
  constexpr std::string_view low = "cdefCDEF";
  std::string whole;
  while (!json.empty()) {
    std::size_t size = json.front() == '\\' ? 2 : 1;
    if (beginsWithSurrogate(json, high) && beginsWithSurrogate(json.substr(escapeSize), low)) {
      size = 2 * escapeSize;
    } else if (beginsWithSurrogate(json, high) || beginsWithSurrogate(json, low)) {
      whole += "\\ufffd";
      json.remove_prefix(escapeSize);
      continue;
    }
    whole += json.substr(0, size);
    json.remove_prefix(std::min(size, json.size()));
  }
  return whole;
}

std::string mended(const std::string& line) {
  std::string utf8;
  utf8::replace_invalid(line.begin(), line.end(), std::back_inserter(utf8));
  return withWholeSurrogatePairs(utf8);
}

}  // namespace

Json parseRequest(const std::string& line) {
  // The parser's own messages repeat the unreadable text, however long it is.
  try {
    return Json::parse(line);
  } catch (const Json::parse_error& error) {
    const auto invalid = utf8::find_invalid(line.begin(), line.end());
    const auto valid = static_cast<std::size_t>(std::distance(line.begin(), invalid));
    const std::string notUtf8 =
        "The line is not UTF-8: see byte " + std::to_string(valid + 1) + ".";
    const std::string place = "see byte " + std::to_string(error.byte) + ".";
    if (std::string mendedLine = mended(line); mendedLine != line && Json::accept(mendedLine)) {
      throw NotWellFormed(
          valid < line.size() ? notUtf8 : "The line holds half a surrogate pair: " + place,
          std::move(mendedLine));
    }
    throw InputError(valid < line.size() ? notUtf8 : "The line is no JSON: " + place);
  } catch (const Json::exception&) {
    throw InputError("The line holds a number that is out of range.");
  }
}

std::string memberAsWritten(std::string_view line, std::string_view name) {
  JsonTokens tokens(line);
  std::string_view token = tokens.next();
  while (token != "{") {
    token = tokens.next();  // A byte order mark stands before it.
  }
  std::string value;
  while (token != "}") {
    token = tokens.next();
    if (token == "}") {
      break;
    }
    const bool wanted = Json::parse(token).get_ref<const std::string&>() == name;
    tokens.next();
    if (wanted) {
      value.clear();
    }
    int depth = 0;
    do {
      token = tokens.next();
      depth += depthChange(token);
      value += wanted ? token : std::string_view();
    } while (depth > 0);
    token = tokens.next();
  }
  return value;
}

const std::string& textMember(const Json& request, std::string_view name) {
  const auto member = request.find(name);
  if (member == request.end() || !member->is_string()) {
    throw InputError("The line is no JSON object with a string \"" + std::string(name) + "\".");
  }
  return member->get_ref<const std::string&>();
}

}  // namespace inspect
