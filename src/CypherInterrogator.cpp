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
#include "strings/StringUtf8ImplDetail.h"

namespace vorn {

namespace {

bool isNodeOrRelationship(CypherType type) {
  return type == CypherType::Node || type == CypherType::Relationship ||
         type == CypherType::NodeOrRelationship;
}

// Several types may be merged in any order.
CypherType mergedType(CypherType one, CypherType other) {
  if (one == other) {
    return one;
  }
  return isNodeOrRelationship(one) && isNodeOrRelationship(other) ? CypherType::NodeOrRelationship
                                                                  : CypherType::Unknown;
}

// Gives names without back quotes: views of the text, or of copies that are kept here.
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

// The variables that a query has bound so far, and those that its last star stands for. A star does
// not copy the variables: a text may hold many of both, and most stars are never asked for them. So
// only what changes after the star is noted.
class Scope {
 public:
  // Returns whether a name is new or changes its type.
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

  // The type of the variable that is written like this; Unknown if there is none.
  [[nodiscard]] CypherType typeOf(std::string_view written) const {
    // Unquoting keeps at least one of every three bytes, apart from two bytes in all. So a longer
    // text is not the name of any variable.
    if (written.size() > 3 * longestName_ + 2) {
      return CypherType::Unknown;
    }
    Names own;
    const auto found = types_.find(own.of(written));
    return found == types_.end() ? CypherType::Unknown : found->second;
  }

  [[nodiscard]] bool isStarred() const { return isStarred_; }

  // From here on the star stands for the variables that are bound now.
  void star() {
    unstar();
    isStarred_ = true;
  }

  void unstar() {
    isStarred_ = false;
    beforeStar_.clear();
  }

  // Calls the action with the name and the type of each variable that the star stands for, ordered
  // by name. Without a star it does nothing.
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
  // The type before the star of a name that was bound only afterwards.
  static constexpr auto unbound = static_cast<CypherType>(-1);

  std::map<std::string_view, CypherType> types_;
  std::map<std::string_view, CypherType> beforeStar_;  // of the names bound since the star
  std::size_t longestName_ = 0;                        // in bytes
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
  // Columns are found when a projection is entered. A projection inside an expression is entered
  // after the one around it, and so replaces the outer columns.
  class ResultColumnNamesAndTypesListener : public TreeListener {
   public:
    explicit ResultColumnNamesAndTypesListener(const SyntaxTree& ofQuery) : tree(ofQuery) {
      constexpr std::size_t usualCount = 8;
      columns.reserve(usualCount);
    }

    // Names bound in an earlier branch stay visible in the later ones.
    void enterOC_Union(const SyntaxTree::Node& /*node*/) {
      // Merging the same star again changes nothing, and a long query may have many such branches.
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
      // A star can only be the first item.
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

    // The last branch gives the names and the number of the columns. The type of a column that the
    // earlier branches lack stays as it is.
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
      // A variable of unknown type passes a WITH only under an alias, even if that is its own name.
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
    std::vector<Column> columns;               // of the last projection, after those of its star
    std::vector<CypherType> previousBranches;  // types of the columns, merged by position
    // How often the variables may have changed: so far, before the last projection, and before the
    // last star that was merged.
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
