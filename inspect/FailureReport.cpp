#include "FailureReport.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>
#include <vector>

#include "DisplayText.h"
#include "Hints.h"
#include "SyntaxErrorView.h"

namespace inspect {

namespace {

constexpr std::size_t npos = std::string_view::npos;

using Tokens = std::vector<std::string>;

// Tokens that are one thing to a reader. If the first of them is expected, so are the others, and
// one name replaces them all.
struct Group {
  const char* name;
  std::vector<std::string_view> tokens;
};

const std::array<Group, 3>& groups() {
  static const std::array<Group, 3> all{{
      {"an expression",
       {"StringLiteral",
        "HexInteger",
        "DecimalInteger",
        "OctalInteger",
        "ExponentDecimalReal",
        "RegularDecimalReal",
        "UnescapedSymbolicName",
        "EscapedSymbolicName",
        "HexLetter",
        "COUNT",
        "ANY",
        "NONE",
        "SINGLE",
        "FILTER",
        "EXTRACT",
        "ALL",
        "NOT",
        "NULL",
        "CASE",
        "EXISTS",
        "TRUE",
        "FALSE",
        "'('",
        "'['",
        "'{'",
        "'+'",
        "'-'",
        "'$'"}},
      {"a name",
       {"UnescapedSymbolicName", "EscapedSymbolicName", "HexLetter", "COUNT", "ANY", "NONE",
        "SINGLE", "FILTER", "EXTRACT"}},
      {"a clause such as MATCH or RETURN",
       {"MATCH", "OPTIONAL", "UNWIND", "MERGE", "CREATE", "SET", "DETACH", "DELETE", "REMOVE",
        "CALL", "WITH", "RETURN"}},
  }};
  return all;
}

bool holds(const Tokens& tokens, std::string_view token) {
  return std::find(tokens.begin(), tokens.end(), token) != tokens.end();
}

Tokens grouped(Tokens tokens) {
  for (const Group& group : groups()) {
    if (holds(tokens, group.tokens.front())) {
      tokens.erase(std::remove_if(tokens.begin(), tokens.end(),
                                  [&group](const std::string& token) {
                                    return std::find(group.tokens.begin(), group.tokens.end(),
                                                     token) != group.tokens.end();
                                  }),
                   tokens.end());
      // White space says little beside a whole group.
      tokens.erase(std::remove(tokens.begin(), tokens.end(), "SP"), tokens.end());
      tokens.insert(tokens.begin(), group.name);
    }
  }
  return tokens;
}

std::string readable(const std::string& token) {
  if (token == "SP") {
    return "white space";
  }
  return token == "<EOF>" ? "the end" : token;
}

// A long list helps nobody to find a slip.
std::string shortList(std::string_view list) {
  constexpr std::string_view separator = ", ";
  constexpr std::size_t most = 5;
  Tokens tokens;
  while (!list.empty()) {
    const std::size_t end = std::min(list.find(separator), list.size());
    tokens.emplace_back(list.substr(0, end));
    list.remove_prefix(std::min(end + separator.size(), list.size()));
  }
  tokens = grouped(tokens);
  std::string text;
  for (std::size_t i = 0; i < std::min(tokens.size(), most); ++i) {
    const bool last = i + 1 == tokens.size();
    text += (i == 0 ? "" : last ? " or " : ", ") + readable(tokens[i]);
  }
  return tokens.size() > most ? text + ", ..." : text;
}

// The list of expected tokens is the end of a message, behind the quotation from the text.
std::string withShortList(const std::string& message) {
  constexpr std::string_view start = " expecting ";
  const std::size_t place = message.rfind(start);
  const std::string_view expected =
      place == npos ? "" : std::string_view(message).substr(place + start.size());
  if (expected == "SP" || expected == "<EOF>") {
    return message.substr(0, place + start.size()) + readable(std::string(expected));
  }
  if (expected.size() > 2 && expected.front() == '{' && expected.back() == '}') {
    return message.substr(0, place + start.size()) +
           shortList(expected.substr(1, expected.size() - 2));
  }
  constexpr std::string_view missing = "missing SP ";
  return message.substr(0, missing.size()) == missing
             ? "missing white space " + message.substr(missing.size())
             : message;
}

constexpr std::string_view upToThePlace = "no viable alternative at input '";

// Where the quotation from the text begins in a message, or npos.
std::size_t quoteStart(const std::string& message) {
  for (const std::string_view start : {upToThePlace, std::string_view("extraneous input '"),
                                       std::string_view("mismatched input '"),
                                       std::string_view("token recognition error at: '")}) {
    if (message.rfind(start, 0) == 0) {
      return start.size();
    }
  }
  constexpr std::string_view beforeToken = " at '";
  const std::size_t place = message.rfind("missing ", 0) == 0 ? message.find(beforeToken) : npos;
  return place == npos ? npos : place + beforeToken.size();
}

// The runtime may quote a whole text or a long token. A quotation that ends at the place of the
// error keeps its end; any other one keeps its beginning.
std::string withShortQuote(const std::string& message) {
  constexpr std::size_t most = 60;
  const std::size_t start = quoteStart(message);
  if (start == npos) {
    return message;
  }
  const bool endsAtPlace = message.rfind(upToThePlace, 0) == 0;
  const std::size_t end = message.rfind('\'', endsAtPlace ? npos : message.rfind("' expecting "));
  const auto clusters = graphemeClusters(std::string_view(message).substr(start, end - start));
  if (clusters.size() <= most) {
    return message;
  }
  std::string quote;
  const std::size_t first = endsAtPlace ? clusters.size() - most : 0;
  for (std::size_t i = first; i != first + most; ++i) {
    quote += clusters[i];
  }
  quote = endsAtPlace ? "..." + quote : quote + "...";
  return message.substr(0, start) + quote + message.substr(end);
}

}  // namespace

std::string failureReport(const Failure& failure, const std::string& text, const Command& command,
                          const std::function<Analysis(const std::string&)>& ask) {
  if (failure.kind == kinds::empty) {
    return "The " + std::string(command.textNoun) + " is empty.\n";
  }
  std::string report =
      escapeControls(wholeMessage(
          {failure.kind, withShortQuote(withShortList(failure.message)), failure.place})) +
      '\n';
  if (!failure.place) {
    return report;
  }
  report += syntaxErrorView(text, failure.place->offset);
  // A text that looks like a path may be openCypher with a typo, unless there is such a file.
  std::optional<std::string> hint = hintForFile(text);
  if (!hint) {
    hint = hintFor(text, failure.place->offset, ask);
  }
  if (!hint) {
    hint = hintForPath(text);
  }
  if (hint) {
    report += "Hint: " + escapeControls(*hint) + '\n';
  }
  return report;
}

}  // namespace inspect
