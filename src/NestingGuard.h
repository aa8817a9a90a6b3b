#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "platform/StackBounds.h"

namespace antlr4 {
class Parser;
class Token;
}  // namespace antlr4

namespace vorn {

/// Refuses a text that nests too deeply for the stack, by std::length_error and before the stack
/// runs out. The parser recurses with each level of nesting. So does prediction, when it lets go of
/// levels that it has looked ahead, and so does the search for what may follow an error.
class NestingGuard {
 public:
  /// Takes the stack from here on as the one that the parse may use.
  NestingGuard();

  /// To be called with the parser before it starts.
  void watch(antlr4::Parser& itsParser) { parser = &itsParser; }

  /// To be called whenever the parser enters a rule.
  void enterRule() const { refuseBelow(deepestRule); }

  /// To be called when the parser meets an error.
  void meetError() const { refuseBelow(deepestError); }

  /// To be called with each token that is read, in the order of the text.
  void readToken(const antlr4::Token& token);

 private:
  enum class Content { RelationshipTypes, MapEntries, Other };

  struct Opening {
    std::size_t position;  // of its first code point in the text
    std::size_t tokenType;
    std::uintptr_t depth;  // the stack that the parser takes for all levels up to this one
    Content content;
  };

  [[noreturn]] static void refuse();
  static void refuseBelow(std::uintptr_t position) {
    if (stackPosition() < position) {
      refuse();
    }
  }
  [[nodiscard]] std::size_t roleOf(std::size_t tokenType) const;
  [[nodiscard]] bool isNameExpected() const;
  [[nodiscard]] bool isDirectlyIn(Content content) const;
  void open(const antlr4::Token& token);
  void readColon();
  void closeBracket();
  void closeCase();
  [[nodiscard]] std::uintptr_t sizeAhead() const;

  // The lowest positions at which
  std::uintptr_t flatEnd;       // prediction begins that looks no level ahead,
  std::uintptr_t deepestRule;   // the parser enters a rule,
  std::uintptr_t deepestError;  // and an error is looked into.
  antlr4::Parser* parser = nullptr;
  std::vector<Opening> openings;  // that are still open, in the order of the text
  // What the last three tokens are, the last one first, white space and comments aside.
  std::array<std::size_t, 3> last{};
};

}  // namespace vorn
