#include "CypherInterrogator.h"

#include <Exceptions.h>

#include <algorithm>
#include <forward_list>
#include <map>
#include <stdexcept>
#include <string>
#include <string_view>

#include "SymbolicName.h"
#include "TooDeep.h"
#include "antlr/Fallback.h"
#include "parser/CompiledParser.h"
#include "parser/TreeWalk.h"
#include "platform/StringUtf8ImplDetail.h"

namespace vorn {

namespace {

bool isNodeOrRelationship(CypherType type) {
  return type == CypherType::Node || type == CypherType::Relationship ||
         type == CypherType::NodeOrRelationship;
}

// The order in which several types are merged makes no difference.
CypherType mergedType(CypherType one, CypherType other) {
  if (one == other) {
    return one;
  }
  return isNodeOrRelationship(one) && isNodeOrRelationship(other) ? CypherType::NodeOrRelationship
                                                                  : CypherType::Unknown;
}

// Names without their quotes: views of the text, or of what is kept here.
class Names {
 public:
  std::string_view of(std::string_view written) {
    if (written.find('`') == std::string_view::npos) {
      return written;
    }
    return unquoted_.emplace_front(unquoteSymbolicName(written));
  }

 private:
  std::forward_list<std::string> unquoted_;
};

// The variables that a query has bound so far, and what a star stood for among them. A scope is not
// copied at a star: most are not asked for it, and a text may hold many of both.
class Scope {
 public:
  /// Whether that changes what was bound before.
  bool bind(std::string_view name, CypherType type) {
    const auto [entry, isNew] = types_.try_emplace(name, type);
    const bool isChange = isNew || entry->second != type;
    if (isStarred_) {
      beforeStar_.try_emplace(name, isNew ? unbound : entry->second);
    }
    entry->second = type;
    longestName_ = std::max(longestName_, name.size());
    return isChange;
  }

  /// The type of a variable that is written so; Unknown if there is none.
  [[nodiscard]] CypherType typeOf(std::string_view written) const {
    // Of three bytes at least one is left when quotes are taken out, but for two of them.
    if (written.size() > 3 * longestName_ + 2) {
      return CypherType::Unknown;
    }
    Names own;
    const auto found = types_.find(own.of(written));
    return found == types_.end() ? CypherType::Unknown : found->second;
  }

  [[nodiscard]] bool isStarred() const { return isStarred_; }

  /// The star stands for what is bound now.
  void star() {
    unstar();
    isStarred_ = true;
  }

  void unstar() {
    isStarred_ = false;
    beforeStar_.clear();
  }

  /// Calls the action with each name, in order, and type that the star stands for, if there is one.
  template <typename Action>
  void forEachStarred(const Action& action) const {
    for (auto entry = types_.begin(); isStarred_ && entry != types_.end(); ++entry) {
      const auto before = beforeStar_.find(entry->first);
      const CypherType type = before == beforeStar_.end() ? entry->second : before->second;
      if (type != unbound) {
        action(entry->first, type);
      }
    }
  }

 private:
  static constexpr auto unbound = static_cast<CypherType>(-1);

  std::map<std::string_view, CypherType> types_;
  std::map<std::string_view, CypherType> beforeStar_;  // of what was bound since then
  std::size_t longestName_ = 0;
  bool isStarred_ = false;
};

struct Column {
  std::string_view written;  // as in the text
  CypherType type;
};

bool isAccepted(SyntaxTree& query) {
  const Verdict verdict = parseQuery(query);
  if (verdict == Verdict::TooDeep) {
    refuseAsTooDeep();
  }
  return verdict == Verdict::Accepted;
}

constexpr const char* refusal = "the text is no openCypher query";

}  // namespace

CypherInterrogator::CypherInterrogator(const WideString& query) : InterrogatorBase(query) {
  if (!isAccepted(tree)) {
    throw antlr4::ParseCancellationException(refusal);
  }
}

CypherInterrogator::CypherInterrogator(std::string_view query, antlr4::ANTLRErrorListener& errors)
    : InterrogatorBase(query) {
  if (!isAccepted(tree)) {
    try {
      findErrorInQueryByAntlr(tree, errors);
    } catch (const std::length_error& reason) {
      throw antlr4::ParseCancellationException(
          std::string(refusal) + "; the place of its error is unknown: " + reason.what());
    }
    throw antlr4::ParseCancellationException(refusal);
  }
}

// NOLINTNEXTLINE(readability-function-cognitive-complexity): of all operations of the local class.
std::vector<std::pair<WideString, CypherType>>& CypherInterrogator::getResultColumnNamesAndTypes() {
  // All work is done when a construct is entered. So a projection inside an expression, which the
  // walk reaches after the projection around it, replaces that one's columns.
  class ResultColumnNamesAndTypesListener : public TreeListener {
   public:
    explicit ResultColumnNamesAndTypesListener(const SyntaxTree& ofQuery) : tree(ofQuery) {
      constexpr std::size_t usualCount = 8;
      columns.reserve(usualCount);
    }

    // Names bound in an earlier branch stay visible in the later ones.
    void enterOC_Union(const SyntaxTree::Node& /*node*/) {
      // To merge the same star once more changes nothing, and a long query may have many of them.
      const bool isStarOnly = variables.isStarred() && columns.empty();
      if (!isStarOnly || starChanges != mergedChanges) {
        mergeBranch();
      }
      if (isStarOnly) {
        mergedChanges = starChanges;
      }
      clearColumns();
    }

    void enterOC_Unwind(const SyntaxTree::Node& node) { bind(node, CypherType::Unknown); }

    void enterOC_With(const SyntaxTree::Node& /*node*/) { insideWith = true; }

    void exitOC_With(const SyntaxTree::Node& /*node*/) { insideWith = false; }

    // A RETURN inside a subquery of a WITH counts as part of that WITH and replaces the scope too.
    void enterOC_ProjectionItems(const SyntaxTree::Node& node) {
      clearColumns();
      std::vector<Column> carried;
      tree.forEachChild(node, [&](const SyntaxTree::Node& item) { project(item, carried); });
      // It is the first item, if there is one.
      const bool isStarred = tree.textOf(node.first) == "*";
      if (isStarred) {
        variables.star();
      } else if (insideWith) {
        variables = Scope();
      }
      starChanges = changes;
      changes += insideWith ? 1 : 0;
      for (const Column& variable : carried) {
        variables.bind(names.of(variable.written), variable.type);
      }
    }

    void enterOC_PatternPart(const SyntaxTree::Node& node) { bind(node, CypherType::Path); }

    void enterOC_NodePattern(const SyntaxTree::Node& node) { bind(node, CypherType::Node); }

    void enterOC_RelationshipDetail(const SyntaxTree::Node& node) {
      bind(node, CypherType::Relationship);
    }

    // Names and number of the columns are the last branch's; columns that another one lacks are
    // left as they are.
    [[nodiscard]] std::vector<std::pair<WideString, CypherType>> result() {
      std::vector<std::pair<WideString, CypherType>> merged;
      merged.reserve(columns.size());
      const auto add = [&](std::string_view name, CypherType type) {
        const std::size_t position = merged.size();
        merged.emplace_back(StringUtf8ImplDetail::StringUtf8ToWideCharImpl(name),
                            position < previousBranches.size()
                                ? mergedType(type, previousBranches[position])
                                : type);
      };
      variables.forEachStarred(add);
      for (const Column& column : columns) {
        add(names.of(column.written), column.type);
      }
      return merged;
    }

   private:
    void mergeBranch() {
      std::size_t position = 0;
      const auto merge = [&](std::string_view /*name*/, CypherType type) {
        if (position == previousBranches.size()) {
          previousBranches.push_back(type);
        }
        previousBranches[position] = mergedType(previousBranches[position], type);
        ++position;
      };
      variables.forEachStarred(merge);
      for (const Column& column : columns) {
        merge(column.written, column.type);
      }
    }

    void bind(const SyntaxTree::Node& node, CypherType type) {
      if (const auto* const variable = tree.child(node, TreeRule::oC_Variable)) {
        changes += variables.bind(names.of(tree.textOf(*variable)), type) ? 1 : 0;
      }
    }

    void project(const SyntaxTree::Node& item, std::vector<Column>& carried) {
      const std::string_view written = tree.textOf(*tree.child(item, TreeRule::oC_Expression));
      const CypherType type = variables.typeOf(written);
      const auto* const alias = tree.child(item, TreeRule::oC_Variable);
      columns.push_back({alias == nullptr ? written : tree.textOf(*alias), type});
      // A bound variable of unknown kind passes a WITH only under an alias, be it its own name.
      if (insideWith && (alias != nullptr || type != CypherType::Unknown)) {
        carried.push_back(columns.back());
      }
    }

    void clearColumns() {
      columns.clear();
      variables.unstar();
    }

    const SyntaxTree& tree;
    Names names;
    Scope variables;
    bool insideWith = false;
    std::vector<Column> columns;               // of the last projection, behind those of a star
    std::vector<CypherType> previousBranches;  // of the columns, merged by position
    // How often variables may have changed: by now, before the last star, and before the last one
    // that was merged.
    std::size_t changes = 1;
    std::size_t starChanges = 0;
    std::size_t mergedChanges = 0;
  };

  if (resultColumns.empty()) {
    ResultColumnNamesAndTypesListener listener(tree);
    walk(tree, listener);
    resultColumns = listener.result();
  }
  return resultColumns;
}

}  // namespace vorn
