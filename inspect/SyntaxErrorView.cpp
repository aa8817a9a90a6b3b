#include "SyntaxErrorView.h"

#include <iterator>
#include <vector>

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

using Clusters = std::vector<std::string_view>;

// The number of bytes in the first clusters that fit into so many columns.
template <typename Iterator>
std::size_t sizeWithin(std::size_t columns, Iterator cluster, Iterator end) {
  std::size_t size = 0;
  for (; cluster != end; ++cluster) {
    const std::size_t width = displayWidth(escapeControls(*cluster));
    if (width > columns) {
      break;
    }
    columns -= width;
    size += cluster->size();
  }
  return size;
}

// The part of a line that is shown, on both sides of the place.
struct Window {
  std::string_view before;
  std::string_view behind;
  bool isCutBefore = false;
  bool isCutBehind = false;
};

// The caret for a place inside a grapheme cluster stands under the whole cluster.
Window windowAround(std::string_view line, std::size_t place) {
  constexpr std::size_t widestLine = 76;
  constexpr std::size_t columnsBefore = 40;
  constexpr std::size_t columnsBehind = 30;
  const Clusters clusters = graphemeClusters(line);
  std::size_t size = 0;
  auto here = clusters.begin();
  while (here != clusters.end() && size + here->size() <= place) {
    size += here++->size();
  }
  const Window all{line.substr(0, size), line.substr(size)};
  if (sizeWithin(widestLine, clusters.begin(), clusters.end()) == line.size()) {
    return all;
  }
  const std::size_t before = sizeWithin(columnsBefore, std::make_reverse_iterator(here),
                                        std::make_reverse_iterator(clusters.begin()));
  const std::size_t behind = sizeWithin(columnsBehind, here, clusters.end());
  return {all.before.substr(size - before), all.behind.substr(0, behind), before < size,
          behind < all.behind.size()};
}

// Applies `display` to the text between tabs. Tabs stay, so that both lines reach the same tab
// stops.
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
  if (!line.empty() && line.back() == '\r' && column < line.size()) {
    line.remove_suffix(1);
  }
  const Window shown = windowAround(line, column);
  constexpr std::string_view cut = "...";
  const std::string start(shown.isCutBefore ? cut : "");
  std::string view(indent);
  view +=
      start + keepingTabs(shown.before, escapeControls) + keepingTabs(shown.behind, escapeControls);
  view += shown.isCutBehind ? cut : "";
  view += '\n';
  view += indent;
  view += blanksFor(start) + keepingTabs(shown.before, blanksFor) + "^\n";
  return view;
}

}  // namespace inspect
