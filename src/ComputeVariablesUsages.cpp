#include <stdexcept>
#include <string>
#include <string_view>
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
  std::string element;
  if (context != nullptr && context->getStart() == context->getStop()) {
    element = context->getStart()->getText();
  }
  return "The openCypher element '" + element + "' of type '" + typeName +
         "' is forbidden in a property filter expression.";
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

WideString wide(std::string_view utf8) {
  return StringUtf8ImplDetail::StringUtf8ToWideCharImpl(utf8);
}

WideString quotedWide(std::string_view name) { return wide(quoteSymbolicName(name)); }

}  // namespace

std::map<WideString, VariableUsage> PropertyFilterExpressionInterrogator::computeVariablesUsages()
    const {
  struct Listener : PropertyFilterListener {
    explicit Listener(const std::string& utf8Text) : source(utf8Text) {}

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
        access.propertyPath.push_back(quotedWide(source.of(*lookup->oC_PropertyKeyName())));
      }
      if (CypherParser::OC_NodeLabelsContext* nodeLabels = ctx->oC_NodeLabels()) {
        for (CypherParser::OC_NodeLabelContext* nodeLabel : nodeLabels->oC_NodeLabel()) {
          access.labels.insert(quotedWide(source.of(*nodeLabel->oC_LabelName())));
        }
      }
      const std::string_view name = source.of(*variable->oC_SymbolicName());
      VariableUsage& usage = usages[quotedWide(name)];
      usage.accesses.insert(std::move(access));
      usage.writtenForms.insert(wide(name));
    }

    SourceText source;
    std::map<WideString, VariableUsage> usages;
  };

  Listener listener(utf8Text);
  walk(listener, *parseTree,
       {CypherParser::RuleOC_ListComprehension, CypherParser::RuleOC_PatternComprehension,
        CypherParser::RuleOC_Quantifier, CypherParser::RuleOC_PatternPredicate,
        CypherParser::RuleOC_ExistentialSubquery, CypherParser::RuleOC_PropertyOrLabelsExpression});
  return std::move(listener.usages);
}

}  // namespace vorn
