#pragma once

#include "Subject.h"

/// The code of a host that calls the parser itself: it builds the pipeline and walks the tree with
/// a listener that does nothing. It does the same for every function.
class [[gnu::visibility("default")]] BarePipeline : public Subject {
 public:
  BarePipeline() : Subject("bare") {}
  void call(Function function, const Text& text) const override;
};

/// How many tokens a text has, with white space and without the end of the text.
[[gnu::visibility("default")]] std::size_t countTokens(const Text& text);
