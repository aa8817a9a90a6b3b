#include "SourceText.h"

#include <CharStream.h>
#include <ParserRuleContext.h>
#include <Token.h>
#include <misc/Interval.h>

namespace vorn {

std::string sourceText(const antlr4::ParserRuleContext& context) {
  const antlr4::Token& first = *context.getStart();
  const antlr4::Token& last = *context.getStop();
  return first.getInputStream()->getText(
      antlr4::misc::Interval(first.getStartIndex(), last.getStopIndex()));
}

}  // namespace vorn
