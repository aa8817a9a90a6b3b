#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <memory_resource>
#include <string>

#include "NestingGuard.h"
#include "vorn/vorn.h"

namespace antlr4 {
class ANTLRInputStream;
class CommonTokenStream;
}  // namespace antlr4

namespace vorn {

class CypherLexer;
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

  NestingGuard guard;  // the first, so that nothing is done on a stack that has no room left
  // Hold the nodes of the parse tree, which are released together. Those of a short text need no
  // block from the heap.
  std::array<std::byte, 8 * std::size_t{1024}> firstNodes;
  std::pmr::monotonic_buffer_resource nodeMemory{firstNodes.data(), firstNodes.size()};

  // Each refers to the one before it, so the order of construction and destruction matters.
  std::string utf8Text;
  std::unique_ptr<antlr4::ANTLRInputStream> inputStream;
  std::unique_ptr<CypherLexer> lexer;
  std::unique_ptr<antlr4::CommonTokenStream> tokenStream;
  std::unique_ptr<CypherParser> parser;
};

}  // namespace vorn
