#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

#include "PropertyFilterExpressionInterrogator.h"
#include "SymbolicName.h"
#include "parser/TreeWalk.h"
#include "strings/StringUtf8ImplDetail.h"

namespace vorn {

namespace {

// `element` is the text of an element that is a single token, and empty for any other.
std::logic_error forbiddenElement(std::string_view typeName, std::string_view element) {
  constexpr std::size_t room = 96;
  std::string message;
  message.reserve(room + typeName.size() + element.size());
  message.append("The openCypher element '").append(element).append("' of type '").append(typeName);
  return std::logic_error(message.append("' is forbidden in a property filter expression."));
}

// Throws at the first element that brings its own variables or patterns into a property filter.
class PropertyFilterListener : public TreeListener {
 public:
  PropertyFilterListener(const SyntaxTree& ofFilter, std::string_view* typeOfRejected)
      : tree(ofFilter), rejectedType(typeOfRejected) {}

  void enterOC_ListComprehension(const SyntaxTree::Node& node) const {
    reject("OC_ListComprehension", node);
  }

  void enterOC_PatternComprehension(const SyntaxTree::Node& node) const {
    reject("OC_PatternComprehension", node);
  }

  void enterOC_Quantifier(const SyntaxTree::Node& node) const { reject("OC_Quantifier", node); }

  void enterOC_PatternPredicate(const SyntaxTree::Node& node) const {
    reject("OC_PatternPredicate", node);
  }

  void enterOC_ExistentialSubquery(const SyntaxTree::Node& node) const {
    reject("OC_ExistentialSubquery", node);
  }

 protected:
  const SyntaxTree& tree;

 private:
  // Inline, because unwinding one more function takes as long as some parses.
  [[noreturn, gnu::always_inline]] inline void reject(std::string_view typeName,
                                                      const SyntaxTree::Node& node) const {
    if (rejectedType != nullptr) {
      *rejectedType = typeName;
    }
    throw forbiddenElement(typeName,
                           node.first == node.last ? tree.textOf(node) : std::string_view());
  }

  std::string_view* rejectedType;  // receives the type of the rejected element; may be null
};

WideString wide(std::string_view utf8) {
  return StringUtf8ImplDetail::StringUtf8ToWideCharImpl(utf8);
}

WideString quotedWide(std::string_view name) { return wide(quoteSymbolicName(name)); }

}  // namespace

std::map<WideString, VariableUsage> PropertyFilterExpressionInterrogator::computeVariablesUsages(
    std::string_view* forbiddenType) const {
  struct Listener : PropertyFilterListener {
    using PropertyFilterListener::PropertyFilterListener;

    // In a filter without forbidden elements every variable is the atom of such an expression, so
    // no use is missed.
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
      // Most filters name the same variable again and again.
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

  Listener listener(tree, forbiddenType);
  walk(tree, listener);
  return std::move(listener.usages);
}

}  // namespace vorn
