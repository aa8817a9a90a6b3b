#pragma once

#include <atn/PredictionContext.h>

#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

namespace vorn {

/// Keeps contexts of predictions, and lets them go without recursion. A context keeps the one that
/// it refers to alive, and such a chain is as long as a text is deep: released from its end, it
/// would recurse over all of it.
class HeldContexts {
 public:
  using Context = std::shared_ptr<const antlr4::atn::PredictionContext>;

  HeldContexts() = default;
  HeldContexts(const HeldContexts&) = delete;
  HeldContexts& operator=(const HeldContexts&) = delete;
  HeldContexts(HeldContexts&&) = delete;
  HeldContexts& operator=(HeldContexts&&) = delete;
  ~HeldContexts() { release(); }

  /// To be called for a context only after those that it refers to.
  void hold(Context context) { contexts.push_back(std::move(context)); }

  /// Makes room for so many.
  void reserve(std::size_t count) { contexts.reserve(count); }

  /// Lets all of them go, each before those that it refers to.
  void release() {
    while (!contexts.empty()) {
      contexts.pop_back();
    }
  }

 private:
  std::vector<Context> contexts;
};

}  // namespace vorn
