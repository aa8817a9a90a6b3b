#pragma once

#include <array>
#include <cstddef>
#include <random>
#include <string>
#include <string_view>

#include "robustness/Questions.h"

/// Draws queries and filters, good and bad ones. They cover the whole language and nest some levels
/// deep. Equal seeds give equal texts.
class RandomTexts {
 public:
  explicit RandomTexts(unsigned seed) : engine(seed) {}

  /// A query, in UTF-8.
  std::string query();

  /// A property filter, with forbidden elements now and then.
  std::string filter();

  /// The text with a piece of it missing, doubled or replaced by a character of untrusted input.
  std::string damaged(std::string text);

  /// A number below the bound.
  std::size_t below(std::size_t bound);

 private:
  bool oneIn(std::size_t number) { return below(number) == 0; }

  template <std::size_t count>
  std::string_view oneOf(const std::array<std::string_view, count>& choices) {
    return choices.at(below(count));
  }

  std::string singleQuery(int depth);
  std::string readingClause(int depth);
  std::string projection(int depth);
  std::string pattern(int depth);
  std::string node(int depth);
  std::string relationship();
  std::string expression(int depth);
  std::string operation(int depth);
  std::string atom(int depth);
  std::string nested(int depth);
  std::string name();
  std::string gap();

  std::mt19937 engine;
};

/// A question about a drawn text, which is damaged one time in three.
Question randomQuestion(RandomTexts& texts);
