#include <tree/ParseTreeWalker.h>

#include <sstream>
#include <stdexcept>
#include <string>
#include <utility>

#include "CypherBaseListener.h"
#include "PropertyFilterExpressionInterrogator.h"
#include "SourceText.h"
#include "SymbolicName.h"
#include "platform/StringUtf8ImplDetail.h"

namespace vorn {

namespace {

// The text of the element is given only if it is a single token. Tokens are separate objects, so
// nothing may be read by stepping from the first one towards the last.
std::string forbiddenElementMessage(const std::string& typeName,
                                    const antlr4::ParserRuleContext* context) {
  std::ostringstream message;
  message.exceptions(std::ios_base::badbit);  // or a stream keeps quiet about a failed allocation
  message << "The openCypher element '";
  if (context != nullptr && context->getStart() == context->getStop()) {
    message << context->getStart()->getText();
  }
  message << "' of type '" << typeName << "' is forbidden in a property filter expression.";
  return message.str();
}

[[noreturn]] void reject(const std::string& typeName, const antlr4::ParserRuleContext* context) {
  throw std::logic_error(forbiddenElementMessage(typeName, context));
}

// Fails at the first element that brings variables or patterns of its own into a property filter.
class PropertyFilterListener : public CypherBaseListener {
 public:
  void enterOC_ListComprehension(CypherParser::OC_ListComprehensionContext* ctx) override {
    reject("OC_ListComprehension", ctx);
  }

  void enterOC_PatternComprehension(CypherParser::OC_PatternComprehensionContext* ctx) override {
    reject("OC_PatternComprehension", ctx);
  }

  void enterOC_Quantifier(CypherParser::OC_QuantifierContext* ctx) override {
    reject("OC_Quantifier", ctx);
  }

  void enterOC_PatternPredicate(CypherParser::OC_PatternPredicateContext* ctx) override {
    reject("OC_PatternPredicate", ctx);
  }

  void enterOC_ExistentialSubquery(CypherParser::OC_ExistentialSubqueryContext* ctx) override {
    reject("OC_ExistentialSubquery", ctx);
  }
};

WideString wide(const std::string& utf8) {
  return StringUtf8ImplDetail::StringUtf8ToWideCharImpl(utf8);
}

WideString quotedWide(const std::string& name) { return wide(quoteSymbolicName(name)); }

}  // namespace

std::map<WideString, VariableUsage> PropertyFilterExpressionInterrogator::computeVariablesUsages()
    const {
  struct Listener : PropertyFilterListener {
    // A variable counts where properties and labels can be read from it directly. In a filter
    // without forbidden elements that is every place where one stands.
    void exitOC_PropertyOrLabelsExpression(
        CypherParser::OC_PropertyOrLabelsExpressionContext* ctx) override {
      CypherParser::OC_VariableContext* variable = ctx->oC_Atom()->oC_Variable();
      if (variable == nullptr) {
        return;
      }
      VariableAccess access;
      for (CypherParser::OC_PropertyLookupContext* lookup : ctx->oC_PropertyLookup()) {
        access.propertyPath.push_back(quotedWide(sourceText(*lookup->oC_PropertyKeyName())));
      }
      if (CypherParser::OC_NodeLabelsContext* nodeLabels = ctx->oC_NodeLabels()) {
        for (CypherParser::OC_NodeLabelContext* nodeLabel : nodeLabels->oC_NodeLabel()) {
          access.labels.insert(quotedWide(sourceText(*nodeLabel->oC_LabelName())));
        }
      }
      const std::string name = sourceText(*variable->oC_SymbolicName());
      VariableUsage& usage = usages[quotedWide(name)];
      usage.accesses.insert(std::move(access));
      usage.writtenForms.insert(wide(name));
    }

    std::map<WideString, VariableUsage> usages;
  };

  Listener listener;
  antlr4::tree::ParseTreeWalker::DEFAULT.walk(&listener, parseTree);
  return std::move(listener.usages);
}

}  // namespace vorn
