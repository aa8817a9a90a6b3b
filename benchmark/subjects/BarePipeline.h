#pragma once

#include "Subject.h"

/// What a host would write that calls the parser itself: it builds the pipeline and walks the tree
/// with a listener that does nothing. The function called makes no difference.
class [[gnu::visibility("default")]] BarePipeline : public Subject {
 public:
  BarePipeline() : Subject("bare") {}
  void call(Function function, const Text& text) const override;
};

/// The tokens of a text, white space included, the end of the text not.
[[gnu::visibility("default")]] std::size_t countTokens(const Text& text);
