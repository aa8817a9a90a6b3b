#pragma once

#include <TokenStream.h>
#include <tree/TerminalNodeImpl.h>

#include <memory>
#include <memory_resource>

#include "ArenaTokenFactory.h"
#include "CypherLexer.h"
#include "CypherParser.h"
#include "NestingGuard.h"

namespace vorn {

/// A lexer that shows the guard every token.
class GuardedLexer final : public CypherLexer {
 public:
  /// The tokens lie in the given memory.
  GuardedLexer(antlr4::CharStream* input, NestingGuard& itsGuard,
               std::pmr::memory_resource& tokenMemory)
      : CypherLexer(input), guard(itsGuard), tokens(tokenMemory) {
    setTokenFactory(&tokens);
  }

  std::unique_ptr<antlr4::Token> nextToken() override {
    std::unique_ptr<antlr4::Token> next = CypherLexer::nextToken();
    guard.readToken(*next);
    return next;
  }

 private:
  NestingGuard& guard;
  ArenaTokenFactory tokens;
};

/// A parser that asks the guard before it enters a rule. A parse listener could do that too, but
/// would make a call a tenth slower.
class GuardedParser final : public CypherParser {
 public:
  /// The nodes of the tree lie in the given memory.
  GuardedParser(antlr4::TokenStream* input, NestingGuard& itsGuard,
                std::pmr::memory_resource& itsNodeMemory)
      : CypherParser(input), guard(itsGuard), nodeMemory(itsNodeMemory) {
    _tracker.takeNodesFrom(nodeMemory);
    guard.watch(*this);
  }

  void enterRule(antlr4::ParserRuleContext* context, std::size_t state, std::size_t rule) override {
    guard.enterRule();
    CypherParser::enterRule(context, state, rule);
  }

  // Nobody asks but an error strategy that has met an error.
  antlr4::misc::IntervalSet getExpectedTokens() override {
    guard.meetError();
    return CypherParser::getExpectedTokens();
  }

  // Does what the runtime does as long as nothing is wrong, and the first error is fatal. A
  // terminal node owns nothing, so nobody has to destroy it.
  antlr4::Token* consume() override {
    using Terminal = antlr4::tree::TerminalNodeImpl;
    antlr4::Token* const consumed = getCurrentToken();
    if (consumed->getType() != EOF) {
      getTokenStream()->consume();
    }
    _ctx->addChild(new (nodeMemory.allocate(sizeof(Terminal), alignof(Terminal)))
                       Terminal(consumed));
    return consumed;
  }

 private:
  NestingGuard& guard;
  std::pmr::memory_resource& nodeMemory;
};

}  // namespace vorn
