#include "PropertyFilterExpressionInterrogator.h"

#include "TooDeep.h"
#include "antlr/Fallback.h"
#include "parser/CompiledParser.h"

namespace vorn {

PropertyFilterExpressionInterrogator::PropertyFilterExpressionInterrogator(
    const WideString& expression)
    : InterrogatorBase(expression) {
  switch (parseExpression(tree)) {
    case Verdict::Accepted:
      return;
    case Verdict::Refused:
      parseExpressionByAntlr(tree);
      return;
    case Verdict::TooDeep:
      refuseAsTooDeep();
  }
}

}  // namespace vorn
