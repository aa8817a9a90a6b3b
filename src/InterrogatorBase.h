#pragma once

#include <array>
#include <cstddef>
#include <initializer_list>
#include <memory>
#include <memory_resource>
#include <string>

#include "NestingGuard.h"
#include "vorn/vorn.h"

namespace antlr4 {
class ANTLRInputStream;
class CommonTokenStream;
class ParserRuleContext;
}  // namespace antlr4

namespace vorn {

class CypherLexer;
class CypherListener;
class CypherParser;

/// Owns the parse pipeline over one text and makes its first lexical or syntax error fatal. The
/// derived classes choose the start rule and compute answers from the tree.
class InterrogatorBase {
 public:
  InterrogatorBase(const InterrogatorBase&) = delete;
  InterrogatorBase& operator=(const InterrogatorBase&) = delete;
  InterrogatorBase(InterrogatorBase&&) = delete;
  InterrogatorBase& operator=(InterrogatorBase&&) = delete;
  virtual ~InterrogatorBase();

 protected:
  explicit InterrogatorBase(const WideString& text);

  /// Walks the tree with a listener that overrides no enter or exit operation but those of the
  /// given rules, which are the only ones that it is told of.
  void walk(CypherListener& listener, antlr4::ParserRuleContext& tree,
            std::initializer_list<std::size_t> rules) const;

  NestingGuard guard;  // the first, so that nothing is done on a stack that has no room left
  // Hold the tokens and the nodes of the parse tree, which are released together. Those of a short
  // text need no block from the heap.
  std::array<std::byte, 8 * std::size_t{1024}> firstMemory;
  std::pmr::monotonic_buffer_resource treeMemory{firstMemory.data(), firstMemory.size()};

  // Each refers to the one before it, so the order of construction and destruction matters.
  std::string utf8Text;
  std::unique_ptr<antlr4::ANTLRInputStream> inputStream;
  std::unique_ptr<CypherLexer> lexer;
  std::unique_ptr<antlr4::CommonTokenStream> tokenStream;
  std::unique_ptr<CypherParser> parser;
};

}  // namespace vorn
