#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "Random.h"

namespace compare {

/// Texts that combine the constructs that three tokens cannot tell apart: one inside the other or
/// directly behind it, to a depth of four. Each construct is a template with holes. Each text is a
/// chain of templates: the next template fills one hole, and the other holes get a plain filling.
class Templates {
 public:
  /// The kind of a text. Each kind of hole takes templates of the same kind.
  enum class Kind : std::uint8_t { Query, Expression, Path, Link };

  /// The longest chains.
  static constexpr std::size_t deepest = 4;

  struct Text {
    std::string text;
    std::vector<std::size_t> pairs;  // the numbers of the pairs in it
  };

  Templates();

  /// How many chains of `depth` templates there are, and one of them.
  [[nodiscard]] std::uint64_t count(Kind kind, std::size_t depth) const;
  [[nodiscard]] Text chain(Kind kind, std::size_t depth, std::uint64_t number) const;

  /// A text in which every hole may hold a template.
  [[nodiscard]] std::string tree(Kind kind, std::size_t depth, Random& random) const;

  /// A pair is a hole of a template and the template that fills it.
  [[nodiscard]] std::size_t pairCount() const { return firstPairs.back(); }
  [[nodiscard]] std::string nameOf(std::size_t pair) const;

 private:
  struct Hole {
    Kind kind;
    std::size_t place;   // in the text of the template
    std::size_t number;  // among all holes
  };

  struct Template {
    std::string written;
    std::string text;  // without the holes
    std::vector<Hole> holes;
  };

  void add(Kind kind, const char* text);
  std::size_t append(Kind kind, std::size_t depth, std::uint64_t number, Text& result) const;
  [[nodiscard]] std::uint64_t countFrom(Kind kind, std::size_t index, std::size_t depth) const;
  [[nodiscard]] const std::vector<Template>& of(Kind kind) const {
    return templates[static_cast<std::size_t>(kind)];
  }

  static constexpr std::size_t kindCount = 4;

  std::vector<Template> templates[kindCount];
  std::vector<Hole> holes;
  std::vector<std::string> holeNames;
  std::vector<std::size_t> firstPairs;           // by hole, and then the number of all pairs
  std::vector<std::uint64_t> counts[kindCount];  // by depth
};

}  // namespace compare
