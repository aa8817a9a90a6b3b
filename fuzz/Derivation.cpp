#include "Derivation.h"

#include <utf8.h>

#include <iterator>

#include "GrammarTable.h"

namespace {

// Enough for subqueries in comprehensions in a query, and far less than a stack can hold.
constexpr std::size_t deepest = 60;
constexpr std::size_t mostRepetitions = 6;

class Deriver {
 public:
  Deriver(const std::uint8_t* bytes, std::size_t byteCount) : choices(bytes), size(byteCount) {}

  Derivation derive() {
    derivation.isQuery = next() % 2 == 0;
    walk(derivation.isQuery ? cypherGrammar.query : cypherGrammar.expression);
    derivation.used = at;
    return std::move(derivation);
  }

 private:
  [[nodiscard]] bool mustEnd() const { return at >= size || depth >= deepest; }

  std::uint8_t next() { return at < size ? choices[at++] : std::uint8_t{0}; }

  std::size_t nextBelow(std::size_t bound) {
    std::size_t choice = next();
    if (bound > 0x100) {
      choice = choice << 8U | next();
    }
    if (bound > 0x10000) {
      choice = choice << 8U | next();
    }
    return choice % bound;
  }

  static const Element& linked(const Element& element, std::size_t i) {
    return cypherGrammar.elements[cypherGrammar.links[element.first + i]];
  }

  static const Element& shortest(const Element& choice) {
    const Element* best = &linked(choice, 0);
    for (std::size_t i = 1; i < choice.count; ++i) {
      if (linked(choice, i).height < best->height) {
        best = &linked(choice, i);
      }
    }
    return *best;
  }

  void walk(std::uint32_t index) { walk(cypherGrammar.elements[index]); }

  void walk(const Element& element) {
    switch (element.kind) {
      case ElementKind::sequence:
        for (std::size_t i = 0; i < element.count; ++i) {
          walk(linked(element, i));
        }
        break;
      case ElementKind::choice:
        walk(mustEnd() ? shortest(element) : linked(element, nextBelow(element.count)));
        break;
      case ElementKind::optional:
        if (!mustEnd() && next() % 2 != 0) {
          walk(linked(element, 0));
        }
        break;
      case ElementKind::plus:
        walk(linked(element, 0));
        repeat(linked(element, 0));
        break;
      case ElementKind::star:
        repeat(linked(element, 0));
        break;
      case ElementKind::rule:
        walkRule(element);
        break;
      case ElementKind::token:
        derivation.tokens.push_back({element.number, {}});
        walk(linked(element, 0));
        break;
      case ElementKind::set:
        append(drawFrom(element));
        break;
      case ElementKind::text:
        for (std::size_t i = 0; i < element.count; ++i) {
          append(cypherGrammar.ranges[element.first + i].first);
        }
        break;
    }
  }

  // Repeats one time in eight. More often, the levels of an expression would multiply.
  void repeat(const Element& element) {
    for (std::size_t i = 0; i < mostRepetitions && !mustEnd() && next() % 8 == 7; ++i) {
      walk(element);
    }
  }

  void walkRule(const Element& rule) {
    const std::size_t place = derivation.spans.size();
    derivation.spans.push_back({rule.number, at, at});
    ++depth;
    walk(linked(rule, 0));
    --depth;
    derivation.spans[place].end = at;
  }

  // All ranges are equally likely, so that rare scripts occur.
  char32_t drawFrom(const Element& set) {
    const CharacterRange& range = cypherGrammar.ranges[set.first + nextBelow(set.count)];
    const std::size_t width = range.last - range.first + 1;
    return range.first + (width == 1 ? 0 : static_cast<char32_t>(nextBelow(width)));
  }

  void append(char32_t character) {
    utf8::append(character, std::back_inserter(derivation.tokens.back().text));
  }

  const std::uint8_t* choices;
  std::size_t size;
  std::size_t at = 0;
  std::size_t depth = 0;
  Derivation derivation{};
};

}  // namespace

Derivation derive(const std::uint8_t* choices, std::size_t size) {
  return Deriver(choices, size).derive();
}
