#include "SyntaxErrorView.h"

#include <iterator>

#include "DisplayText.h"

namespace inspect {

namespace {

constexpr std::size_t npos = std::string_view::npos;
constexpr std::string_view indent = "  ";
constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

std::string_view lineAround(std::string_view text, std::size_t place) {
  const std::size_t lineFeed = place == 0 ? npos : text.rfind('\n', place - 1);
  text.remove_prefix(lineFeed == npos ? 0 : lineFeed + 1);
  return text.substr(0, text.find('\n'));
}

// A place inside a grapheme cluster is shown under the whole of it.
std::string_view clustersBefore(std::string_view line, std::size_t place) {
  std::size_t end = 0;
  for (const std::string_view cluster : graphemeClusters(line)) {
    if (end + cluster.size() > place) {
      break;
    }
    end += cluster.size();
  }
  return line.substr(0, end);
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

std::string syntaxErrorView(std::string_view text, std::size_t place) {
  if (text.substr(0, byteOrderMark.size()) == byteOrderMark) {
    text.remove_prefix(byteOrderMark.size());
    place -= byteOrderMark.size();
  }
  std::string_view line = lineAround(text, place);
  const auto column = place - static_cast<std::size_t>(std::distance(text.begin(), line.begin()));
  const std::string_view before = clustersBefore(line, column);
  if (!line.empty() && line.back() == '\r' && before.size() < line.size()) {
    line.remove_suffix(1);
  }
  std::string view(indent);
  view += keepingTabs(line, escapeControls) + '\n';
  view += indent;
  view += keepingTabs(before, blanksFor) + "^\n";
  return view;
}

}  // namespace inspect
