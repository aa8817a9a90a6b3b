#include "Damage.h"

#include <utf8.h>

#include <cstddef>
#include <utility>
#include <vector>

namespace compare {

namespace {

Pieces piecesOf(std::string_view text, const std::vector<Token>& tokens) {
  Pieces pieces;
  for (std::size_t i = 0; i < tokens.size(); ++i) {
    const std::size_t end = i + 1 < tokens.size() ? tokens[i + 1].start : text.size();
    pieces.emplace_back(text.substr(tokens[i].start, end - tokens[i].start));
  }
  return pieces;
}

bool isBlank(const std::string& piece) { return piece.find_first_not_of(" \t\n\r") == piece.npos; }

// Draws a place between two characters.
std::size_t drawPlace(std::string_view text, Random& random) {
  std::size_t place = random.below(text.size() + 1);
  while (place < text.size() && utf8::internal::is_trail(text[place])) {
    ++place;
  }
  return place;
}

std::string changedCharacter(std::string_view text, Drawing& drawing, Random& random) {
  static const Pieces characters{"(", ")", "[", "]", "{",  "}", ".", ":", ",", "-", "<", ">", "=",
                                 "|", "*", " ", "'", "\"", "`", "/", "a", "1", "e", "0", "_", "$"};
  const std::size_t place = drawPlace(text, random);
  std::size_t end = place;
  if (!random.oneIn(3) && end < text.size()) {
    do {
      ++end;
    } while (end < text.size() && utf8::internal::is_trail(text[end]));
  }
  std::string changed(text.substr(0, place));
  if (!random.oneIn(4)) {
    changed += random.oneIn(6) ? drawing.drawEdge() : random.pick(characters);
  }
  return changed.append(text.substr(end));
}

void swapWithNext(Pieces& pieces, std::size_t place) {
  if (place + 1 < pieces.size()) {
    std::swap(pieces[place], pieces[place + 1]);
  }
}

void changeBlank(Pieces& pieces, std::size_t place) {
  for (std::size_t i = 0; i < pieces.size(); ++i) {
    std::string& piece = pieces[(place + i) % pieces.size()];
    if (isBlank(piece)) {
      piece.clear();
      return;
    }
  }
}

}  // namespace

std::string damaged(std::string_view text, const std::vector<Token>& tokens, Drawing& drawing,
                    Random& random) {
  Pieces pieces = piecesOf(text, tokens);
  if (pieces.empty()) {
    return changedCharacter(text, drawing, random);
  }
  const std::size_t place = random.below(pieces.size());
  const auto at = pieces.begin() + static_cast<std::ptrdiff_t>(place);
  switch (random.below(10)) {
    case 0:
      pieces.erase(at);
      break;
    case 1: {
      std::string copy = *at;
      pieces.insert(at, std::move(copy));
      break;
    }
    case 2:
      swapWithNext(pieces, place);
      break;
    case 3:
      std::swap(pieces[place], pieces[random.below(pieces.size())]);
      break;
    case 4:
      pieces[place] = drawing.drawToken();
      break;
    case 5:
      pieces.insert(at, drawing.drawToken());
      break;
    case 6:
      changeBlank(pieces, place);
      break;
    case 7:
      pieces.insert(at, " ");
      break;
    case 8:
      return std::string(text.substr(0, drawPlace(text, random)));
    default:
      return changedCharacter(text, drawing, random);
  }
  return joined(pieces);
}

std::string withTail(std::string_view text, Drawing& drawing, Random& random) {
  static const Pieces tails{
      " ",          " AS x",
      " IS",        " IS NOT",
      " IS NULL x", " IN",
      " IN [",      "-",
      " - ",        "--",
      "--(",        "--()",
      "-[",         "-[a",
      "-[a]-",      "-[a]-(",
      "-[a]-(b)",   "-->(c).d",
      "<-",         "<--(",
      "<-[a]-(b",   "[",
      "[1",         "[1..",
      "[a IN b",    ".",
      ".b",         ".b.",
      ":",          ":B",
      ":B:",        " AND",
      " AND ",      " OR x",
      " XOR ",      " NOT",
      "=",          "= ",
      "<",          "<>",
      "<=",         "+",
      "*",          "/",
      "%",          "^",
      "(",          "()",
      "(*)",        "(a)",
      ")",          "]",
      "}",          "{",
      "{a:1}",      ",",
      ", ",         "|",
      ";",          " WHERE a",
      " STARTS",    " STARTS WITH",
      " ENDS x",    " CONTAINS",
      " 'x",        "'",
      "\"",         "`",
      "/*",         "/*x*/",
      "//",         "\n",
      "$",          "$a",
      "..",         "1",
      " 1",         " a",
      "a",          "#",
      "\xC2\xAD",   "!",
      " RETURN 1",  " THEN 1",
      " END",       " DESC",
      " UNION ",    " YIELD a",
      " ;x",        "\\",
  };
  std::string result(text);
  result += random.oneIn(8) ? drawing.drawToken() : random.pick(tails);
  for (std::size_t i = random.below(3); i > 0; --i) {
    result += random.oneIn(3) ? drawing.drawToken() : random.pick(tails);
  }
  return result;
}

}  // namespace compare
