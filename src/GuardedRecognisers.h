#pragma once

#include <memory>

#include "CypherLexer.h"
#include "CypherParser.h"
#include "NestingGuard.h"

namespace vorn {

/// A lexer that shows the guard every token.
class GuardedLexer final : public CypherLexer {
 public:
  GuardedLexer(antlr4::CharStream* input, NestingGuard& itsGuard)
      : CypherLexer(input), guard(itsGuard) {}

  std::unique_ptr<antlr4::Token> nextToken() override {
    std::unique_ptr<antlr4::Token> next = CypherLexer::nextToken();
    guard.readToken(*next);
    return next;
  }

 private:
  NestingGuard& guard;
};

/// A parser that asks the guard before it enters a rule. A parse listener could do that too, but
/// would make a call a tenth slower.
class GuardedParser final : public CypherParser {
 public:
  GuardedParser(antlr4::TokenStream* input, NestingGuard& itsGuard,
                std::pmr::memory_resource& nodeMemory)
      : CypherParser(input), guard(itsGuard) {
    _tracker.takeNodesFrom(nodeMemory);
    guard.watch(*this);
  }

  void enterRule(antlr4::ParserRuleContext* context, std::size_t state, std::size_t rule) override {
    guard.enterRule();
    CypherParser::enterRule(context, state, rule);
  }

 private:
  NestingGuard& guard;
};

}  // namespace vorn
