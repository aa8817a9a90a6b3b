#include "PropertyFilterExpressionInterrogator.h"

#include "CypherLexer.h"
#include "TooDeep.h"
#include "antlr/Fallback.h"
#include "antlr/ThrowingErrorListener.h"
#include "parser/CompiledParser.h"

namespace vorn {

PropertyFilterExpressionInterrogator::PropertyFilterExpressionInterrogator(
    const WideString& expression)
    : InterrogatorBase(expression) {
  parse(ThrowingErrorListener::instance());
}

PropertyFilterExpressionInterrogator::PropertyFilterExpressionInterrogator(
    std::string_view expression, antlr4::ANTLRErrorListener& errors)
    : InterrogatorBase(expression) {
  parse(errors);
}

void PropertyFilterExpressionInterrogator::parse(antlr4::ANTLRErrorListener& errors) {
  switch (parseExpression(tree)) {
    case Verdict::Accepted:
      return;
    case Verdict::Refused:
      parseExpressionByAntlr(tree, errors);
      return;
    case Verdict::TooDeep:
      refuseAsTooDeep();
  }
}

std::size_t PropertyFilterExpressionInterrogator::expressionEnd() const {
  const std::size_t next = tree.nodes.front().last + std::size_t{1};
  const std::size_t rest = next + (tree.types[next] == CypherLexer::SP ? 1 : 0);
  return tree.isWhole && rest == tree.tokenCount() ? tree.text.size() : tree.starts[next];
}

}  // namespace vorn
