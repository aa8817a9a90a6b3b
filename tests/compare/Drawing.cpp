#include "Drawing.h"

#include <utf8.h>

#include <algorithm>
#include <iterator>

#include "CypherLexer.h"

namespace compare {

namespace {

using Lexer = vorn::CypherLexer;

constexpr std::size_t deepest = 400;  // rules: an atom inside an atom takes fifteen

const Element& linked(const Element& element, std::size_t i) {
  return cypherGrammar.elements[cypherGrammar.links[element.first + i]];
}

bool isWordLike(char c) {
  const auto byte = static_cast<unsigned char>(c);
  return byte >= 0x80 || c == '_' || (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') ||
         (c >= 'a' && c <= 'z');
}

bool isSurrogate(char32_t character) { return character >= 0xD800 && character <= 0xDFFF; }

bool isToken(const Element& element, std::size_t type) {
  return element.kind == ElementKind::token && element.number == type;
}

}  // namespace

std::string joined(const Pieces& pieces) {
  std::string text;
  for (const std::string& piece : pieces) {
    text += piece;
  }
  return text;
}

Drawing::Drawing(Random& itsRandom) : random(itsRandom) {
  std::vector<bool> seen;
  findTokens(cypherGrammar.elements[cypherGrammar.query], seen);
  std::sort(edges.begin(), edges.end());
  edges.erase(std::unique(edges.begin(), edges.end()), edges.end());
}

void Drawing::findTokens(const Element& element, std::vector<bool>& seen) {
  const auto index = static_cast<std::size_t>(&element - cypherGrammar.elements);
  if (index >= seen.size()) {
    seen.resize(index + 1);
  }
  if (seen[index]) {
    return;
  }
  seen[index] = true;
  if (element.kind == ElementKind::set || element.kind == ElementKind::text) {
    for (std::size_t i = 0; i < element.count; ++i) {
      const CharacterRange& range = cypherGrammar.ranges[element.first + i];
      const std::uint32_t first = range.first;
      const std::uint32_t last = range.last;
      for (const std::uint32_t edge : {first - 1, first, last, last + 1}) {
        if (edge < 0x110000 && !isSurrogate(edge)) {
          edges.push_back(static_cast<char32_t>(edge));
        }
      }
    }
    return;
  }
  if (element.kind == ElementKind::token) {
    tokens.push_back(&element);
  }
  if (element.first + element.count > uses.size()) {
    uses.resize(element.first + element.count);
    rounds.resize(3 * uses.size());
  }
  for (std::size_t i = 0; i < element.count; ++i) {
    findTokens(linked(element, i), seen);
  }
}

Pieces Drawing::draw(Entry entry, std::size_t room) {
  mostPieces = room;
  pieces.clear();
  walk(cypherGrammar
           .elements[entry == Entry::Query ? cypherGrammar.query : cypherGrammar.expression]);
  return pieces;
}

std::string Drawing::drawToken() { return textOf(*random.pick(tokens)); }

std::string Drawing::drawEdge() {
  std::string text;
  utf8::append(random.pick(edges), std::back_inserter(text));
  return text;
}

void Drawing::walk(const Element& element) {
  switch (element.kind) {
    case ElementKind::sequence:
      for (std::size_t i = 0; i < element.count; ++i) {
        walk(linked(element, i));
      }
      break;
    case ElementKind::choice:
      walkChoice(element);
      break;
    case ElementKind::optional: {
      const bool isBlank = isToken(linked(element, 0), Lexer::SP);
      if ((isBlank || !isFull()) && random.oneIn(3)) {
        walk(linked(element, 0));
      }
      break;
    }
    case ElementKind::star:
      repeat(element, 0);
      break;
    case ElementKind::plus:
      repeat(element, 1);
      break;
    case ElementKind::rule:
      ++depth;
      walk(linked(element, 0));
      --depth;
      break;
    case ElementKind::token:
      addToken(element);
      break;
    case ElementKind::set:
    case ElementKind::text:
      break;
  }
}

void Drawing::walkChoice(const Element& element) {
  constexpr std::uint32_t slack = 3;  // lets literals and variables end an expression
  std::size_t chosen = random.below(element.count);
  if (isFull() || depth > deepest) {
    std::uint32_t least = linked(element, 0).height;
    for (std::size_t i = 1; i < element.count; ++i) {
      least = std::min(least, linked(element, i).height);
    }
    while (linked(element, chosen).height > least + (depth > deepest ? 0 : slack)) {
      chosen = (chosen + 1) % element.count;
    }
  } else {
    const std::size_t other = random.below(element.count);
    if (uses[element.first + other] < uses[element.first + chosen]) {
      chosen = other;
    }
  }
  ++uses[element.first + chosen];
  walk(linked(element, chosen));
}

// Rarely more than the fewest rounds: otherwise the levels of an expression would multiply.
std::size_t Drawing::drawRounds(const Element& element, std::size_t least) {
  constexpr std::size_t chances = 12;
  std::uint32_t* const counts = &rounds[3 * element.first];
  std::size_t count = 0;
  if (!isFull()) {
    if (random.oneIn(chances)) {
      count = static_cast<std::size_t>(std::min_element(counts, counts + 3) - counts);
    } else {
      while (random.oneIn(chances)) {
        ++count;
      }
    }
  }
  ++counts[std::min<std::size_t>(count, 2)];
  return least + count;
}

void Drawing::repeat(const Element& element, std::size_t least) {
  for (std::size_t i = drawRounds(element, least); i > 0; --i) {
    walk(linked(element, 0));
  }
}

// Two words that stand side by side are set apart, which the grammar allows nearly everywhere.
void Drawing::addToken(const Element& token) {
  std::string text = textOf(token);
  if (!pieces.empty() && !text.empty() && !pieces.back().empty() &&
      isWordLike(pieces.back().back()) && isWordLike(text.front())) {
    pieces.emplace_back(" ");
  }
  pieces.push_back(std::move(text));
}

std::string Drawing::textOf(const Element& token) {
  static const Pieces blanks{"\t",      "\n",    "\r\n",  "  ",    "/**/",
                             "/* x */", "//y\n", "\v \f", "/****/"};
  static const Pieces names{"n", "m", "x", "n", "person", "K1", "_x", "映画", "tRuest"};
  static const Pieces quotedNames{"`n`", "`a`", "`a b`", "`a``b`", "``", "`x```"};
  static const Pieces strings{"'s'", "\"\"", "'n`'", "'\\n\\\\'", "\"'\"", "'\\u00e9'"};
  if (!random.oneIn(16)) {
    switch (token.number) {
      case Lexer::SP:
        return random.oneIn(8) ? random.pick(blanks) : " ";
      case Lexer::UnescapedSymbolicName:
        return random.pick(names);
      case Lexer::EscapedSymbolicName:
        return random.pick(quotedNames);
      case Lexer::StringLiteral:
        return random.pick(strings);
      default:
        break;
    }
  }
  std::string text;
  append(linked(token, 0), text);
  return text;
}

void Drawing::append(const Element& element, std::string& text) {
  switch (element.kind) {
    case ElementKind::sequence:
      for (std::size_t i = 0; i < element.count; ++i) {
        append(linked(element, i), text);
      }
      break;
    case ElementKind::choice:
      append(linked(element, random.below(element.count)), text);
      break;
    case ElementKind::optional:
      if (random.oneIn(2)) {
        append(linked(element, 0), text);
      }
      break;
    case ElementKind::plus:
    case ElementKind::star:
      for (std::size_t i = random.below(3) + (element.kind == ElementKind::plus ? 1 : 0); i > 0;
           --i) {
        append(linked(element, 0), text);
      }
      break;
    case ElementKind::rule:
    case ElementKind::token:
      break;
    case ElementKind::set: {
      const CharacterRange& range =
          cypherGrammar.ranges[element.first + random.below(element.count)];
      const auto character =
          range.first + static_cast<char32_t>(random.below(range.last - range.first + 1));
      utf8::append(isSurrogate(character) ? U'?' : character, std::back_inserter(text));
      break;
    }
    case ElementKind::text:
      for (std::size_t i = 0; i < element.count; ++i) {
        utf8::append(cypherGrammar.ranges[element.first + i].first, std::back_inserter(text));
      }
      break;
  }
}

}  // namespace compare
