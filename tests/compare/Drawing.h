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

/// Draws texts from the grammar. What has been drawn less often is drawn sooner, and names are few,
/// so that most texts are accepted and their variables meet.
class Drawing {
 public:
  explicit Drawing(Random& itsRandom);

  /// The tokens of a text, in UTF-8. When there is no more room the shortest way out is taken.
  Pieces draw(Entry entry, std::size_t room);

  /// One token of any kind.
  std::string drawToken();

  /// A character at the edge of a range that the lexer tells apart.
  std::string drawEdge();

 private:
  void findTokens(const Element& element, std::vector<bool>& seen);
  void walk(const Element& element);
  void walkChoice(const Element& element);
  void repeat(const Element& element, std::size_t least);
  std::size_t drawRounds(const Element& element, std::size_t least);
  void addToken(const Element& token);
  std::string textOf(const Element& token);
  void append(const Element& element, std::string& text);
  [[nodiscard]] bool isFull() const { return pieces.size() >= mostPieces; }

  Random& random;
  std::size_t mostPieces = 0;
  std::size_t depth = 0;
  Pieces pieces;
  std::vector<std::uint32_t> uses;    // of each link
  std::vector<std::uint32_t> rounds;  // three for each link: none, one and more
  std::vector<const Element*> tokens;
  std::vector<char32_t> edges;
};

}  // namespace compare
