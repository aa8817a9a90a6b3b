#pragma once

#include <stdexcept>

#include "Shapes.h"
#include "vorn/vorn.h"

/// The answer to a text that nests.
enum class Answer { None, Right, Wrong, TooDeep };

inline Answer answerFor(const vorn::WideString& text) {
  try {
    return vorn::ReplaceVariableNamesInPropertyFilterOCExpression(text, {}) == text ? Answer::Right
                                                                                    : Answer::Wrong;
  } catch (const std::length_error&) {
    return Answer::TooDeep;
  }
}

inline vorn::WideString parentheses(std::size_t levels) {
  return Shape{"", "(", ")", "a"}.nested(levels);
}
