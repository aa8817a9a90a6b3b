#pragma once

// The compiled parser has one function for each rule of the grammar. The function takes the rule's
// tokens from the current position on and returns whether they are there. Up to three tokens ahead
// decide between alternatives. In a few places the alternatives are tried in order instead.
//
// A trial only recognises text and adds no nodes. The results of trials inside a trial are
// remembered by token. So none of them is made twice, however deep the nesting, and the time stays
// linear. After a trial the parser follows the remembered results, and never takes back a node.
//
// The functions throw nothing. The rules that every recursion passes check the stack.

#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <utility>
#include <vector>

#include "parser/CompiledParser.h"
#include "parser/SyntaxTree.h"
#include "platform/StackBounds.h"

namespace vorn {

/// A set of token types.
class TokenSet {
 public:
  constexpr TokenSet(std::initializer_list<std::uint8_t> types) {
    for (const std::uint8_t type : types) {
      words_[type / bits] |= std::uint64_t{1} << type % bits;
    }
  }

  [[nodiscard]] constexpr bool holds(std::uint8_t type) const {
    return (words_[type / bits] >> type % bits & 1U) != 0;
  }

 private:
  static constexpr std::size_t bits = 64;
  std::array<std::uint64_t, 3> words_{};
};

/// What the functions of the rules are made of. `Rules`, the class that has them, derives from it.
template <typename Rules>
class RuleParser {
 public:
  using Rule = bool (Rules::*)();

  explicit RuleParser(SyntaxTree& tree) : tree_(tree), types_(tree.types.data()) {
    // Few texts have many more nodes than tokens.
    tree.nodes.reserve(tree.tokenCount());
  }

  /// Parses the whole text by the rule `start`. One token of the type `follower` may stand behind.
  Verdict parse(Rule start, std::uint8_t follower = SyntaxTree::endOfText) {
    bool matches = tree_.isWhole && call(start);
    skip(follower);
    matches = matches && position_ >= tree_.tokenCount();
    return isTooDeep_ ? Verdict::TooDeep : matches ? Verdict::Accepted : Verdict::Refused;
  }

 protected:
  [[nodiscard]] std::uint8_t ahead(std::size_t count) const { return types_[position_ + count]; }

  bool take(std::uint8_t type) {
    const bool matches = ahead(0) == type;
    position_ += matches ? 1 : 0;
    return matches;
  }

  bool takeOneOf(const TokenSet& types) {
    const bool matches = types.holds(ahead(0));
    position_ += matches ? 1 : 0;
    return matches;
  }

  void skip(std::uint8_t type) { static_cast<void>(take(type)); }
  void skipOneOf(const TokenSet& types) { static_cast<void>(takeOneOf(types)); }

  std::uint32_t open(TreeRule rule) {
    if (isTrial_) {
      return SyntaxTree::none;
    }
    tree_.nodes.push_back({rule, position_, position_, 0, parent_});
    parent_ = static_cast<std::uint32_t>(tree_.nodes.size() - 1);
    return parent_;
  }

  void close(std::uint32_t place) {
    if (!isTrial_) {
      SyntaxTree::Node& node = tree_.nodes[place];
      node.last = position_ - 1;
      node.end = static_cast<std::uint32_t>(tree_.nodes.size());
      parent_ = node.parent;
    }
  }

  [[nodiscard]] bool isStackUsedUp() {
    if (stackPosition() < stackEnd_) {
      isTooDeep_ = isTooDeep_ || stackPosition() < knownStackEnd();
    }
    return isTooDeep_;
  }

  /// Takes the first of the rules that matches here.
  template <std::size_t count>
  bool takeFirstOf(const std::array<Rule, count>& rules) {
    if (isTrial_ || isTried()) {
      return takeTried(tried(rules.data(), count), rules.data());
    }
    // The last rule needs no trial: if no other rule matches, the parse itself tells.
    constexpr std::size_t last = count - 1;
    const Trial trial = tryInOrder(rules.data(), last);
    return !isTooDeep_ && call(rules[trial.end == failed ? last : trial.rule]);
  }

  /// Takes what the rule matches here, or nothing.
  bool takeIfMatches(Rule rule) { return takeTried(tried(&rule, 1), &rule); }

 private:
  // The result of a trial at a token. A match is never empty, so no match ends at token 0.
  struct Trial {
    std::uint32_t end;   // the token behind the match, `untried` or `failed`
    std::uint32_t rule;  // the index of the rule that matched
  };
  static constexpr std::uint32_t untried = 0;
  static constexpr std::uint32_t failed = 0xFFFFFFFF;

  bool call(Rule rule) { return (static_cast<Rules*>(this)->*rule)(); }

  [[nodiscard]] bool isTried() const {
    return !trials_.empty() && trials_[position_].end != untried;
  }

  const Trial& tried(const Rule* rules, std::size_t count) {
    if (trials_.empty()) {
      trials_.resize(tree_.tokenCount() + 1);
    }
    Trial& trial = trials_[position_];
    if (trial.end == untried) {
      trial = tryInOrder(rules, count);
    }
    return trial;
  }

  Trial tryInOrder(const Rule* rules, std::size_t count) {
    const std::uint32_t start = position_;
    const bool isWithinTrial = std::exchange(isTrial_, true);
    Trial trial{failed, 0};
    for (; trial.rule < count; ++trial.rule) {
      position_ = start;
      if (call(rules[trial.rule])) {
        trial.end = position_;
        break;
      }
    }
    position_ = start;
    isTrial_ = isWithinTrial;
    return trial;
  }

  bool takeTried(const Trial& trial, const Rule* rules) {
    if (trial.end == failed || isTooDeep_) {
      return false;
    }
    if (isTrial_) {
      position_ = trial.end;
      return true;
    }
    return call(rules[trial.rule]);
  }

  // Asking the system takes longer than parsing a short text, so it waits until a text nests.
  std::uintptr_t knownStackEnd() {
    if (!isStackKnown_) {
      isStackKnown_ = true;
      stackEnd_ = stackEnd(stackStart_) + stackReserve;
    }
    return stackEnd_;
  }

  // Every stack is taken to have this much left.
  static constexpr std::uintptr_t smallStack = std::uintptr_t{8} * 1024;
  // Kept free for the functions between two checks of the stack, and for what they call.
  static constexpr std::uintptr_t stackReserve = std::uintptr_t{16} * 1024;

  SyntaxTree& tree_;
  const std::uint8_t* types_;  // of the tokens, in the tree
  std::uintptr_t stackStart_ = stackPosition();
  std::uintptr_t stackEnd_ = stackStart_ - smallStack;  // a guess until isStackKnown_
  bool isStackKnown_ = false;
  std::uint32_t position_ = 0;               // of the next token
  std::uint32_t parent_ = SyntaxTree::none;  // the innermost node that is open
  bool isTrial_ = false;
  bool isTooDeep_ = false;
  std::vector<Trial> trials_;  // by token; empty until a trial is made inside another
};

}  // namespace vorn
