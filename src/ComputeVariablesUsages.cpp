#include <algorithm>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

#include "PropertyFilterExpressionInterrogator.h"
#include "SymbolicName.h"
#include "parser/TreeWalk.h"
#include "platform/StringUtf8ImplDetail.h"

namespace vorn {

namespace {

std::string forbiddenMessage(std::string_view typeName, std::string_view element) {
  constexpr std::size_t room = 96;
  std::string message;
  message.reserve(room + typeName.size() + element.size());
  message.append("The openCypher element '").append(element).append("' of type '").append(typeName);
  return message.append("' is forbidden in a property filter expression.");
}

// Empty for an element that has its place in a property filter.
std::string_view typeNameOfForbidden(TreeRule rule) {
  switch (rule) {
    case TreeRule::oC_ListComprehension:
      return "OC_ListComprehension";
    case TreeRule::oC_PatternComprehension:
      return "OC_PatternComprehension";
    case TreeRule::oC_Quantifier:
      return "OC_Quantifier";
    case TreeRule::oC_PatternPredicate:
      return "OC_PatternPredicate";
    case TreeRule::oC_ExistentialSubquery:
      return "OC_ExistentialSubquery";
    default:
      return {};
  }
}

// The text of the element is given only if it is a single token. Tokens are separate objects, so
// nothing may be read by stepping from the first one towards the last.
ForbiddenElement forbiddenElementAt(const SyntaxTree& tree, const SyntaxTree::Node& node) {
  const std::string_view typeName = typeNameOfForbidden(node.rule);
  const std::string_view text = node.first == node.last ? tree.textOf(node) : std::string_view();
  return {typeName, forbiddenMessage(typeName, text)};
}

// Fails at the first element that brings variables or patterns of its own into a property filter.
class PropertyFilterListener : public TreeListener {
 public:
  explicit PropertyFilterListener(const SyntaxTree& ofFilter) : tree(ofFilter) {}

  void enterOC_ListComprehension(const SyntaxTree::Node& node) const { reject(node); }

  void enterOC_PatternComprehension(const SyntaxTree::Node& node) const { reject(node); }

  void enterOC_Quantifier(const SyntaxTree::Node& node) const { reject(node); }

  void enterOC_PatternPredicate(const SyntaxTree::Node& node) const { reject(node); }

  void enterOC_ExistentialSubquery(const SyntaxTree::Node& node) const { reject(node); }

 protected:
  const SyntaxTree& tree;

 private:
  // Inline, for an exception takes as long for each function that it leaves as some parses do.
  [[noreturn, gnu::always_inline]] inline void reject(const SyntaxTree::Node& node) const {
    throw std::logic_error(forbiddenElementAt(tree, node).message);
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
    using PropertyFilterListener::PropertyFilterListener;

    // A variable counts where properties and labels can be read from it directly. In a filter
    // without forbidden elements that is every place where one stands.
    void exitOC_PropertyOrLabelsExpression(const SyntaxTree::Node& node) {
      const SyntaxTree::Node* const atom = tree.child(node, TreeRule::oC_Atom);
      const SyntaxTree::Node* const variable = tree.child(*atom, TreeRule::oC_Variable);
      if (variable == nullptr) {
        return;
      }
      VariableAccess access;
      tree.forEachChild(node, [&](const SyntaxTree::Node& child) {
        if (child.rule == TreeRule::oC_PropertyKeyName) {
          access.propertyPath.push_back(quotedWide(tree.textOf(child)));
        } else if (child.rule == TreeRule::oC_LabelName) {
          access.labels.insert(quotedWide(tree.textOf(child)));
        }
      });
      // Most filters name one variable again and again.
      if (const std::string_view name = tree.textOf(*variable); name != lastName) {
        lastName = name;
        lastUsage = &usages[quotedWide(name)];
        lastUsage->writtenForms.insert(wide(name));
      }
      lastUsage->accesses.insert(std::move(access));
    }

    std::map<WideString, VariableUsage> usages;
    std::string_view lastName;
    VariableUsage* lastUsage = nullptr;
  };

  Listener listener(tree);
  walk(tree, listener);
  return std::move(listener.usages);
}

std::optional<ForbiddenElement> PropertyFilterExpressionInterrogator::forbiddenElement() const {
  // Nodes stand in the order in which the walk enters them.
  const auto first = std::find_if(
      tree.nodes.begin(), tree.nodes.end(),
      [](const SyntaxTree::Node& node) { return !typeNameOfForbidden(node.rule).empty(); });
  if (first == tree.nodes.end()) {
    return std::nullopt;
  }
  return forbiddenElementAt(tree, *first);
}

}  // namespace vorn
