#include "CypherInterrogator.h"

#include <algorithm>
#include <string>
#include <unordered_map>
#include <utility>

#include "CypherBaseListener.h"
#include "SourceText.h"
#include "SymbolicName.h"
#include "platform/StringUtf8ImplDetail.h"

namespace vorn {

namespace {

struct Column {
  std::string name;  // UTF-8, unquoted
  CypherType type;
};

using Columns = std::vector<Column>;

bool isNodeOrRelationship(CypherType type) {
  return type == CypherType::Node || type == CypherType::Relationship ||
         type == CypherType::NodeOrRelationship;
}

CypherType mergedType(CypherType one, CypherType other) {
  if (one == other) {
    return one;
  }
  return isNodeOrRelationship(one) && isNodeOrRelationship(other) ? CypherType::NodeOrRelationship
                                                                  : CypherType::Unknown;
}

// Names and number of the columns are the last branch's; columns that the other one lacks are left
// as they are.
void mergeBranch(Columns& columns, const Columns& branch) {
  const std::size_t common = std::min(columns.size(), branch.size());
  for (std::size_t i = 0; i < common; ++i) {
    columns[i].type = mergedType(columns[i].type, branch[i].type);
  }
}

}  // namespace

CypherInterrogator::CypherInterrogator(const WideString& query)
    : InterrogatorBase(query), parseTree(parser->oC_Cypher()) {}

std::vector<std::pair<WideString, CypherType>>& CypherInterrogator::getResultColumnNamesAndTypes() {
  // All work is done when a construct is entered. So a projection inside an expression, which the
  // walk reaches after the projection around it, replaces that one's columns.
  class ResultColumnNamesAndTypesListener : public CypherBaseListener {
   public:
    explicit ResultColumnNamesAndTypesListener(const std::string& utf8Text) : source(utf8Text) {}

    // Names bound in an earlier branch stay visible in the later ones.
    void enterOC_Union(CypherParser::OC_UnionContext* /*ctx*/) override {
      previousBranches.push_back(std::exchange(columns, {}));
    }

    void enterOC_Unwind(CypherParser::OC_UnwindContext* ctx) override {
      bind(ctx->oC_Variable(), CypherType::Unknown);
    }

    void enterOC_With(CypherParser::OC_WithContext* /*ctx*/) override { insideWith = true; }

    void exitOC_With(CypherParser::OC_WithContext* /*ctx*/) override { insideWith = false; }

    // A RETURN inside a subquery of a WITH counts as part of that WITH and replaces the scope too.
    void enterOC_ProjectionItems(CypherParser::OC_ProjectionItemsContext* ctx) override {
      Scope newScope;
      columns.clear();
      for (antlr4::tree::ParseTree* child : ctx->children) {
        if (auto* item = dynamic_cast<CypherParser::OC_ProjectionItemContext*>(child)) {
          project(*item, newScope);
        } else if (auto* terminal = dynamic_cast<antlr4::tree::TerminalNode*>(child);
                   terminal != nullptr && source.of(*terminal->getSymbol()) == "*") {
          projectAll(newScope);
        }
      }
      if (insideWith) {
        variables = std::move(newScope);
      }
    }

    void enterOC_PatternPart(CypherParser::OC_PatternPartContext* ctx) override {
      bind(ctx->oC_Variable(), CypherType::Path);
    }

    void enterOC_NodePattern(CypherParser::OC_NodePatternContext* ctx) override {
      bind(ctx->oC_Variable(), CypherType::Node);
    }

    void enterOC_RelationshipDetail(CypherParser::OC_RelationshipDetailContext* ctx) override {
      bind(ctx->oC_Variable(), CypherType::Relationship);
    }

   private:
    using Scope = std::unordered_map<std::string, Column>;

    [[nodiscard]] std::string nameOf(const antlr4::ParserRuleContext& context) const {
      return unquoteSymbolicName(source.of(context));
    }

    static void set(Scope& scope, const Column& column) {
      scope.insert_or_assign(column.name, column);
    }

    void bind(CypherParser::OC_VariableContext* variable, CypherType type) {
      if (variable != nullptr) {
        set(variables, {nameOf(*variable->oC_SymbolicName()), type});
      }
    }

    void project(CypherParser::OC_ProjectionItemContext& item, Scope& newScope) {
      const std::string exprText = nameOf(*item.oC_Expression());
      const auto found = variables.find(exprText);
      const CypherType type = found == variables.end() ? CypherType::Unknown : found->second.type;
      if (item.AS() != nullptr) {
        const Column column{nameOf(*item.oC_Variable()->oC_SymbolicName()), type};
        set(newScope, column);
        columns.push_back(column);
      } else {
        // A bound variable of unknown kind passes a WITH only under an alias, be it its own name.
        if (type != CypherType::Unknown) {
          set(newScope, found->second);
        }
        columns.push_back({exprText, type});
      }
    }

    void projectAll(Scope& newScope) {
      for (const auto& [name, column] : variables) {
        newScope.emplace(name, column);
        columns.push_back(column);
      }
      // The star is the first item, so these are all the columns so far.
      std::sort(columns.begin(), columns.end(),
                [](const Column& left, const Column& right) { return left.name < right.name; });
    }

    SourceText source;

   public:
    Scope variables;
    bool insideWith = false;
    Columns columns;
    std::vector<Columns> previousBranches;
  };

  if (!resultColumns.empty()) {
    return resultColumns;
  }
  ResultColumnNamesAndTypesListener listener(utf8Text);
  walk(listener, *parseTree,
       {CypherParser::RuleOC_Union, CypherParser::RuleOC_Unwind, CypherParser::RuleOC_With,
        CypherParser::RuleOC_ProjectionItems, CypherParser::RuleOC_PatternPart,
        CypherParser::RuleOC_NodePattern, CypherParser::RuleOC_RelationshipDetail});
  for (const Columns& branch : listener.previousBranches) {
    mergeBranch(listener.columns, branch);
  }
  resultColumns.reserve(listener.columns.size());
  for (const Column& column : listener.columns) {
    resultColumns.emplace_back(StringUtf8ImplDetail::StringUtf8ToWideCharImpl(column.name),
                               column.type);
  }
  return resultColumns;
}

}  // namespace vorn
