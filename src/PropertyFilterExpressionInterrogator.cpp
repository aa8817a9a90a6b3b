#include "PropertyFilterExpressionInterrogator.h"

namespace vorn {

PropertyFilterExpressionInterrogator::PropertyFilterExpressionInterrogator(
    const WideString& expression)
    : InterrogatorBase(expression), parseTree(parser->oC_Expression()) {}

}  // namespace vorn
