#include "SyntaxErrorView.h"

#include <utf8.h>

#include <charconv>
#include <iterator>
#include <system_error>

#include "DisplayText.h"

namespace inspect {

namespace {

constexpr std::string_view indent = "  ";
constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

bool startsWith(std::string_view text, std::string_view start) {
  return text.substr(0, start.size()) == start;
}

bool take(std::string_view& rest, std::string_view expected) {
  if (!startsWith(rest, expected)) {
    return false;
  }
  rest.remove_prefix(expected.size());
  return true;
}

bool takeNumber(std::string_view& rest, std::size_t& number) {
  const char* const end = std::next(rest.data(), static_cast<std::ptrdiff_t>(rest.size()));
  const auto [stop, error] = std::from_chars(rest.data(), end, number);
  if (error != std::errc()) {
    return false;
  }
  rest.remove_prefix(static_cast<std::size_t>(std::distance(rest.data(), stop)));
  return true;
}

std::optional<std::string_view> lineOf(std::string_view text, std::size_t number) {
  for (; number > 1; --number) {
    const std::size_t lineFeed = text.find('\n');
    if (lineFeed == std::string_view::npos) {
      return std::nullopt;
    }
    text.remove_prefix(lineFeed + 1);
  }
  return text.substr(0, text.find('\n'));
}

// A place inside a grapheme cluster is shown under the whole of it.
std::string_view clustersBefore(std::string_view line, std::size_t column) {
  std::size_t bytes = 0;
  std::size_t codePoints = 0;
  for (const std::string_view cluster : graphemeClusters(line)) {
    codePoints += static_cast<std::size_t>(utf8::distance(cluster.begin(), cluster.end()));
    if (codePoints > column) {
      break;
    }
    bytes += cluster.size();
  }
  return line.substr(0, bytes);
}

// Tabs stay, so that both lines reach the same tab stops; what stands between them is passed on.
template <typename Display>
std::string keepingTabs(std::string_view line, const Display& display) {
  std::string shown;
  for (std::size_t tab = line.find('\t'); tab != std::string_view::npos; tab = line.find('\t')) {
    shown += display(line.substr(0, tab)) + '\t';
    line.remove_prefix(tab + 1);
  }
  return shown + display(line);
}

std::string blanksFor(std::string_view text) {
  std::string blanks(displayWidth(escapeControls(text)), ' ');
  return blanks;
}

}  // namespace

std::optional<Place> placeOfSyntaxError(std::string_view message) {
  Place place{};
  if (take(message, "line ") && takeNumber(message, place.line) && take(message, ":") &&
      takeNumber(message, place.column) && startsWith(message, " ")) {
    return place;
  }
  return std::nullopt;
}

std::string syntaxErrorView(std::string_view text, Place place) {
  // The library strips this mark and counts without it.
  take(text, byteOrderMark);
  std::optional<std::string_view> line = lineOf(text, place.line);
  if (!line) {
    return {};
  }
  const std::string_view before = clustersBefore(*line, place.column);
  if (!line->empty() && line->back() == '\r' && before.size() < line->size()) {
    line->remove_suffix(1);
  }
  std::string view(indent);
  view += keepingTabs(*line, escapeControls) + '\n';
  view += indent;
  view += keepingTabs(before, blanksFor) + "^\n";
  return view;
}

}  // namespace inspect
