#include "ReferenceAnswers.h"

#include <tree/ParseTreeWalker.h>

#include <algorithm>
#include <stdexcept>
#include <string>
#include <utility>

#include "CypherBaseListener.h"
#include "support/Text.h"

namespace compare {

namespace {

using Parser = vorn::CypherParser;
using vorn::CypherType;
using vorn::WideString;

std::string quoted(const std::string& name) {
  if (name.substr(0, 1) == "`") {
    return name;
  }
  std::string text = "`";
  for (const char c : name) {
    text += c == '`' ? "``" : std::string(1, c);
  }
  return text + "`";
}

std::string unquoted(const std::string& text) {
  std::string name;
  bool inside = false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] != '`') {
      name += text[i];
    } else if (!inside) {
      inside = true;
    } else if (i + 1 < text.size() && text[i + 1] == '`') {
      name += '`';
      ++i;
    } else if (i + 1 < text.size()) {
      inside = false;
    }
  }
  return name;
}

void walk(antlr4::tree::ParseTreeListener& listener, antlr4::ParserRuleContext& tree) {
  antlr4::tree::ParseTreeWalker::DEFAULT.walk(&listener, &tree);
}

struct Column {
  std::string name;  // UTF-8, unquoted
  CypherType type;
};

class ColumnsListener : public vorn::CypherBaseListener {
 public:
  void enterOC_Union(Parser::OC_UnionContext* /*ctx*/) override {
    branches.push_back(std::exchange(columns, {}));
  }

  void enterOC_Unwind(Parser::OC_UnwindContext* ctx) override {
    bind(ctx->oC_Variable(), CypherType::Unknown);
  }

  void enterOC_With(Parser::OC_WithContext* /*ctx*/) override { insideWith = true; }

  void exitOC_With(Parser::OC_WithContext* /*ctx*/) override { insideWith = false; }

  void enterOC_ProjectionItems(Parser::OC_ProjectionItemsContext* ctx) override {
    std::map<std::string, CypherType> scope;
    columns.clear();
    if (ctx->children.front()->getText() == "*" &&
        dynamic_cast<antlr4::tree::TerminalNode*>(ctx->children.front()) != nullptr) {
      // The map orders by name.
      scope = variables;
      for (const auto& [name, type] : variables) {
        columns.push_back({name, type});
      }
    }
    for (Parser::OC_ProjectionItemContext* item : ctx->oC_ProjectionItem()) {
      project(*item, scope);
    }
    if (insideWith) {
      variables = std::move(scope);
    }
  }

  void enterOC_PatternPart(Parser::OC_PatternPartContext* ctx) override {
    bind(ctx->oC_Variable(), CypherType::Path);
  }

  void enterOC_NodePattern(Parser::OC_NodePatternContext* ctx) override {
    bind(ctx->oC_Variable(), CypherType::Node);
  }

  void enterOC_RelationshipDetail(Parser::OC_RelationshipDetailContext* ctx) override {
    bind(ctx->oC_Variable(), CypherType::Relationship);
  }

  Columns merged() {
    for (const std::vector<Column>& branch : branches) {
      for (std::size_t i = 0; i < std::min(columns.size(), branch.size()); ++i) {
        columns[i].type = mergedType(columns[i].type, branch[i].type);
      }
    }
    Columns answer;
    for (const Column& column : columns) {
      answer.columns.emplace_back(wide(column.name), column.type);
    }
    return answer;
  }

 private:
  static bool isNodeOrRelationship(CypherType type) {
    return type == CypherType::Node || type == CypherType::Relationship ||
           type == CypherType::NodeOrRelationship;
  }

  static CypherType mergedType(CypherType one, CypherType other) {
    if (one == other) {
      return one;
    }
    return isNodeOrRelationship(one) && isNodeOrRelationship(other) ? CypherType::NodeOrRelationship
                                                                    : CypherType::Unknown;
  }

  void bind(Parser::OC_VariableContext* variable, CypherType type) {
    if (variable != nullptr) {
      variables[unquoted(variable->getText())] = type;
    }
  }

  void project(Parser::OC_ProjectionItemContext& item, std::map<std::string, CypherType>& scope) {
    const std::string text = unquoted(item.oC_Expression()->getText());
    const auto found = variables.find(text);
    const CypherType type = found == variables.end() ? CypherType::Unknown : found->second;
    if (item.AS() != nullptr) {
      const std::string alias = unquoted(item.oC_Variable()->getText());
      scope[alias] = type;
      columns.push_back({alias, type});
      return;
    }
    // A variable of unknown type passes a WITH only under an alias, even if that is its own name.
    if (type != CypherType::Unknown) {
      scope[text] = type;
    }
    columns.push_back({text, type});
  }

  std::map<std::string, CypherType> variables;
  bool insideWith = false;
  std::vector<Column> columns;
  std::vector<std::vector<Column>> branches;
};

// Ends the walk at the first element that a filter must not hold.
struct Forbidden : std::logic_error {
  using std::logic_error::logic_error;
};

class UsagesListener : public vorn::CypherBaseListener {
 public:
  void enterOC_ListComprehension(Parser::OC_ListComprehensionContext* ctx) override {
    reject("OC_ListComprehension", *ctx);
  }

  void enterOC_PatternComprehension(Parser::OC_PatternComprehensionContext* ctx) override {
    reject("OC_PatternComprehension", *ctx);
  }

  void enterOC_Quantifier(Parser::OC_QuantifierContext* ctx) override {
    reject("OC_Quantifier", *ctx);
  }

  void enterOC_PatternPredicate(Parser::OC_PatternPredicateContext* ctx) override {
    reject("OC_PatternPredicate", *ctx);
  }

  void enterOC_ExistentialSubquery(Parser::OC_ExistentialSubqueryContext* ctx) override {
    reject("OC_ExistentialSubquery", *ctx);
  }

  void exitOC_PropertyOrLabelsExpression(
      Parser::OC_PropertyOrLabelsExpressionContext* ctx) override {
    Parser::OC_VariableContext* variable = ctx->oC_Atom()->oC_Variable();
    if (variable == nullptr) {
      return;
    }
    vorn::VariableAccess access;
    for (Parser::OC_PropertyLookupContext* lookup : ctx->oC_PropertyLookup()) {
      access.propertyPath.push_back(wide(quoted(lookup->oC_PropertyKeyName()->getText())));
    }
    if (Parser::OC_NodeLabelsContext* labels = ctx->oC_NodeLabels()) {
      for (Parser::OC_NodeLabelContext* label : labels->oC_NodeLabel()) {
        access.labels.insert(wide(quoted(label->oC_LabelName()->getText())));
      }
    }
    vorn::VariableUsage& usage = usages[wide(quoted(variable->getText()))];
    usage.accesses.insert(std::move(access));
    usage.writtenForms.insert(wide(variable->getText()));
  }

  std::map<WideString, vorn::VariableUsage> usages;

 private:
  [[noreturn]] static void reject(const std::string& type, antlr4::ParserRuleContext& context) {
    const bool oneToken = context.getStart() == context.getStop();
    throw Forbidden("The openCypher element '" + (oneToken ? context.getText() : "") +
                    "' of type '" + type + "' is forbidden in a property filter expression.");
  }
};

class RenamingListener : public vorn::CypherBaseListener {
 public:
  explicit RenamingListener(const Renames& renames) {
    for (const auto& [oldName, newName] : renames) {
      newNames[quoted(narrow(oldName))] = quoted(narrow(newName));
    }
  }

  void enterOC_Variable(Parser::OC_VariableContext* /*ctx*/) override { insideVariable = true; }

  void exitOC_Variable(Parser::OC_VariableContext* /*ctx*/) override { insideVariable = false; }

  void visitTerminal(antlr4::tree::TerminalNode* node) override {
    const std::string text = node->getText();
    const auto found = newNames.find(quoted(text));
    output += insideVariable && found != newNames.end() ? found->second : text;
  }

  std::string output;

 private:
  std::map<std::string, std::string> newNames;
  bool insideVariable = false;
};

}  // namespace

Columns referenceColumns(antlr4::ParserRuleContext& query) {
  ColumnsListener listener;
  walk(listener, query);
  return listener.merged();
}

Usages referenceUsages(antlr4::ParserRuleContext& expression) {
  UsagesListener listener;
  try {
    walk(listener, expression);
  } catch (const Forbidden& exception) {
    return {Ending::Forbidden, exception.what(), {}};
  }
  return {Ending::Answer, {}, std::move(listener.usages)};
}

Renamed referenceRenamed(antlr4::ParserRuleContext& expression, const Renames& renames) {
  RenamingListener listener(renames);
  walk(listener, expression);
  return {Ending::Answer, {}, wide(listener.output)};
}

}  // namespace compare
