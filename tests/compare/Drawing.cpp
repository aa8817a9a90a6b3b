#include "Drawing.h"

#include <utf8.h>

#include <algorithm>
#include <iterator>

#include "CypherLexer.h"

namespace compare {

namespace {

using Lexer = vorn::CypherLexer;

std::uint32_t indexOf(const Element& element) {
  return static_cast<std::uint32_t>(&element - cypherGrammar.elements);
}

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

bool isChoiceOfTokens(const Element& element) {
  for (std::size_t i = 0; i < element.count; ++i) {
    if (linked(element, i).kind != ElementKind::token) {
      return false;
    }
  }
  return true;
}

// Usually the same token is drawn for a dash, a name or a key: the many others slow prediction and
// show little.
std::size_t usualToken(const Element& choice) {
  for (std::size_t i = 0; i < choice.count; ++i) {
    if (isToken(linked(choice, i), Lexer::UnescapedSymbolicName)) {
      return i;
    }
  }
  return 0;
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
  explore(cypherGrammar.elements[cypherGrammar.query]);
  known.resize(rules.size());
  std::sort(edges.begin(), edges.end());
  edges.erase(std::unique(edges.begin(), edges.end()), edges.end());
}

void Drawing::explore(const Element& element) {
  const std::uint32_t index = indexOf(element);
  if (index >= seen.size()) {
    seen.resize(index + 1);
    parents.resize(index + 1);
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
  } else if (element.kind == ElementKind::rule) {
    rules.push_back(&element);
  }
  uses.resize(std::max<std::size_t>(uses.size(), element.first + element.count));
  for (std::size_t i = 0; i < element.count; ++i) {
    explore(linked(element, i));
    parents[indexOf(linked(element, i))].push_back(index);
  }
}

const Drawing::Distances& Drawing::distancesTo(std::size_t rule) {
  Distances& found = known[rule];
  if (!found.empty()) {
    return found;
  }
  found.assign(parents.size(), never);
  std::vector<std::uint32_t> reached{indexOf(*rules[rule])};
  found[reached.front()] = 0;
  for (std::size_t i = 0; i < reached.size(); ++i) {
    for (const std::uint32_t parent : parents[reached[i]]) {
      if (found[parent] == never) {
        found[parent] = found[reached[i]] + 1;
        reached.push_back(parent);
      }
    }
  }
  return found;
}

std::uint32_t Drawing::distance(const Element& element) const {
  return (*distances)[indexOf(element)];
}

// Draws one of the links that are nearest to the goal.
std::size_t Drawing::nearest(const Element& element) {
  std::size_t best = 0;
  std::size_t equal = 1;
  for (std::size_t i = 1; i < element.count; ++i) {
    const std::uint32_t one = distance(linked(element, i));
    const std::uint32_t other = distance(linked(element, best));
    equal = one == other ? equal + 1 : one < other ? 1 : equal;
    if (one < other || (one == other && random.oneIn(equal))) {
      best = i;
    }
  }
  return best;
}

Pieces Drawing::draw(Entry entry, std::size_t room) {
  mostPieces = room;
  pieces.clear();
  const std::size_t rule = random.below(rules.size());
  goal = rules[rule];
  distances = &distancesTo(rule);
  const Element& start =
      cypherGrammar
          .elements[entry == Entry::Query ? cypherGrammar.query : cypherGrammar.expression];
  walk(start, random.oneIn(8) || distance(start) == never ? Mode::Free : Mode::Towards);
  return pieces;
}

std::string Drawing::drawToken() { return textOf(*random.pick(tokens)); }

std::string Drawing::drawEdge() {
  std::string text;
  utf8::append(random.pick(edges), std::back_inserter(text));
  return text;
}

void Drawing::walk(const Element& element, Mode mode) {
  switch (element.kind) {
    case ElementKind::sequence:
      walkSequence(element, mode);
      break;
    case ElementKind::choice:
      walkChoice(element, mode);
      break;
    case ElementKind::optional:
      walkOptional(element, mode);
      break;
    case ElementKind::star:
    case ElementKind::plus:
      walkRepeated(element, mode);
      break;
    case ElementKind::rule:
      walkRule(element, mode);
      break;
    case ElementKind::token:
      addToken(element);
      break;
    case ElementKind::set:
    case ElementKind::text:
      break;
  }
}

// One element of the sequence leads to the goal, the others are free.
void Drawing::walkSequence(const Element& sequence, Mode mode) {
  const std::size_t leading = mode == Mode::Towards ? nearest(sequence) : 0;
  for (std::size_t i = 0; i < sequence.count; ++i) {
    walk(linked(sequence, i), mode == Mode::Towards && i != leading ? Mode::Free : mode);
  }
}

void Drawing::walkChoice(const Element& choice, Mode mode) {
  const std::size_t chosen = mode == Mode::Towards     ? nearest(choice)
                             : mode == Mode::AtTheGoal ? random.below(choice.count)
                                                       : drawAlternative(choice);
  ++uses[choice.first + chosen];
  walk(linked(choice, chosen), mode);
}

void Drawing::walkOptional(const Element& optional, Mode mode) {
  const Element& inside = linked(optional, 0);
  const bool mayBeLong = mode == Mode::Free && !isToken(inside, Lexer::SP);
  if (mode == Mode::Towards ||
      (random.oneIn(mode == Mode::AtTheGoal ? 2 : 3) && !(mayBeLong && isFull()))) {
    walk(inside, mode);
  }
}

void Drawing::walkRepeated(const Element& repeated, Mode mode) {
  const Element& inside = linked(repeated, 0);
  std::size_t rounds = drawRounds(mode) + (repeated.kind == ElementKind::plus ? 1 : 0);
  if (mode == Mode::Towards) {
    walk(inside, mode);
    mode = Mode::Free;
    rounds = random.oneIn(8) ? 1 : 0;
  }
  for (; rounds > 0; --rounds) {
    walk(inside, mode);
  }
}

void Drawing::walkRule(const Element& rule, Mode mode) {
  ++depth;
  walk(linked(rule, 0), mode != Mode::Towards ? Mode::Free
                        : &rule == goal       ? Mode::AtTheGoal
                                              : Mode::Towards);
  --depth;
}

std::size_t Drawing::drawAlternative(const Element& choice) {
  constexpr std::uint32_t slack = 3;  // lets literals and variables end an expression
  std::size_t chosen = random.below(choice.count);
  if (isFull()) {
    std::uint32_t least = linked(choice, 0).height;
    for (std::size_t i = 1; i < choice.count; ++i) {
      least = std::min(least, linked(choice, i).height);
    }
    while (linked(choice, chosen).height > least + (depth > deepest ? 0 : slack)) {
      chosen = (chosen + 1) % choice.count;
    }
    return chosen;
  }
  if (!random.oneIn(8) && isChoiceOfTokens(choice)) {
    return usualToken(choice);
  }
  const std::size_t other = random.below(choice.count);
  return uses[choice.first + other] < uses[choice.first + chosen] ? other : chosen;
}

// Rarely draws a round, since the levels of an expression would multiply otherwise.
std::size_t Drawing::drawRounds(Mode mode) {
  constexpr std::size_t chances = 12;
  if (mode == Mode::AtTheGoal) {
    return random.below(3);
  }
  std::size_t rounds = 0;
  while (!isFull() && random.oneIn(chances)) {
    ++rounds;
  }
  return rounds;
}

// Puts a blank between two words, which the grammar allows nearly everywhere.
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
