#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "GrammarTable.h"
#include "Random.h"
#include "Subject.h"

namespace compare {

using Pieces = std::vector<std::string>;

std::string joined(const Pieces& pieces);

/// Draws texts from the grammar. Most texts lead to one rule by the shortest way and take all ways
/// there equally often. So they stay small and leave nothing out. There are few names, so that
/// texts use the same variable more than once.
class Drawing {
 public:
  explicit Drawing(Random& itsRandom);

  /// The tokens of a text, in UTF-8. After `room` tokens the text ends by the shortest way.
  Pieces draw(Entry entry, std::size_t room);

  /// One token of any kind.
  std::string drawToken();

  /// A character at the edge of a range that the lexer tells apart.
  std::string drawEdge();

 private:
  /// How the choices of an element are made.
  enum class Mode {
    Towards,    // by the shortest way to the goal
    AtTheGoal,  // all equally often
    Free,       // rarely used ones more often; nothing large where little room is left
  };

  using Distances = std::vector<std::uint32_t>;  // by element
  static constexpr std::uint32_t never = UINT32_MAX;

  void explore(const Element& element);
  const Distances& distancesTo(std::size_t rule);
  [[nodiscard]] std::uint32_t distance(const Element& element) const;
  std::size_t nearest(const Element& element);
  void walk(const Element& element, Mode mode);
  void walkSequence(const Element& sequence, Mode mode);
  void walkChoice(const Element& choice, Mode mode);
  void walkOptional(const Element& optional, Mode mode);
  void walkRepeated(const Element& repeated, Mode mode);
  void walkRule(const Element& rule, Mode mode);
  std::size_t drawAlternative(const Element& choice);
  std::size_t drawRounds(Mode mode);
  void addToken(const Element& token);
  std::string textOf(const Element& token);
  void append(const Element& element, std::string& text);
  [[nodiscard]] bool isFull() const { return pieces.size() >= mostPieces || depth > deepest; }

  static constexpr std::size_t deepest = 400;  // rules: an atom inside an atom takes fifteen

  Random& random;
  std::size_t mostPieces = 0;
  std::size_t depth = 0;  // in rules
  Pieces pieces;
  const Element* goal = nullptr;                    // null where there is none
  const Distances* distances = nullptr;             // to the goal; owned by `known`
  std::vector<std::uint32_t> uses;                  // by link
  std::vector<std::vector<std::uint32_t>> parents;  // by element
  std::vector<bool> seen;
  std::vector<const Element*> rules;
  std::vector<Distances> known;  // by rule
  std::vector<const Element*> tokens;
  std::vector<char32_t> edges;
};

}  // namespace compare
