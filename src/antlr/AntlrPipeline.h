#pragma once

#include <cstddef>
#include <memory>
#include <string_view>

#include "CypherParser.h"
#include "antlr/ThrowingErrorListener.h"

namespace antlr4 {
class ANTLRInputStream;
class CommonTokenStream;
}  // namespace antlr4

namespace vorn {

class CypherLexer;

/// The ANTLR runtime's pipeline over one text, in which the first lexical or syntax error is fatal.
class AntlrPipeline {
 public:
  /// How many configurations prediction may reach in a filter. Measured: 8,400 at most in random
  /// and damaged filters, 3,200 with 500 operators, 24,000 in eight nested list comprehensions.
  static constexpr std::size_t usualBound = 100'000;

  /// The text and the listener must outlive the pipeline. The listener must throw at each error.
  /// `bound` is how many configurations prediction may reach.
  explicit AntlrPipeline(std::string_view utf8,
                         antlr4::ANTLRErrorListener& errors = ThrowingErrorListener::instance(),
                         std::size_t bound = usualBound);

  AntlrPipeline(const AntlrPipeline&) = delete;
  AntlrPipeline& operator=(const AntlrPipeline&) = delete;
  AntlrPipeline(AntlrPipeline&&) = delete;
  AntlrPipeline& operator=(AntlrPipeline&&) = delete;
  ~AntlrPipeline();

  /// Both parse from the start of the text, so only one of them may be called, and once. The
  /// pipeline owns the tree.
  CypherParser::OC_ExpressionContext& parseExpression() { return *parser_->oC_Expression(); }
  CypherParser::OC_CypherContext& parseQuery() { return *parser_->oC_Cypher(); }

 private:
  // Each refers to the one before it.
  std::unique_ptr<antlr4::ANTLRInputStream> input_;
  std::unique_ptr<CypherLexer> lexer_;
  std::unique_ptr<antlr4::CommonTokenStream> tokens_;
  std::unique_ptr<CypherParser> parser_;
};

}  // namespace vorn
