#include <string>
#include <string_view>
#include <utility>

#include "PropertyFilterExpressionInterrogator.h"
#include "SymbolicName.h"
#include "parser/TreeWalk.h"
#include "strings/StringUtf8ImplDetail.h"

namespace vorn {

namespace {

std::string quotedUtf8(const WideString& name) {
  return quoteSymbolicName(StringUtf8ImplDetail::StringWideCharToUtf8Impl(name));
}

}  // namespace

WideString PropertyFilterExpressionInterrogator::replaceVariableNames(
    const std::unordered_map<WideString, WideString>& renames) const {
  std::unordered_map<std::string, std::string> quoted;
  quoted.reserve(renames.size());
  for (const auto& [oldName, newName] : renames) {
    std::string replacement = quotedUtf8(newName);
    quoted.insert_or_assign(quotedUtf8(oldName), std::move(replacement));
  }
  return StringUtf8ImplDetail::StringUtf8ToWideCharImpl(replaceQuotedNames(quoted));
}

std::string PropertyFilterExpressionInterrogator::replaceQuotedNames(
    const std::unordered_map<std::string, std::string>& renames) const {
  // White space and comments are tokens too, so the tokens in their order are the whole text.
  // Unlike the search for usages this does not validate: variables inside forbidden elements are
  // renamed too.
  struct Listener : TreeListener {
    Listener(const SyntaxTree& ofFilter, const std::unordered_map<std::string, std::string>& given)
        : tree(ofFilter), renames(given) {}

    void visitTerminal(std::size_t token) {
      const std::string_view text = tree.textOf(token);
      const auto renamed = insideVariable ? renames.find(quoteSymbolicName(text)) : renames.end();
      if (renamed == renames.end()) {
        unchanged = {unchanged.empty() ? text.data() : unchanged.data(),
                     unchanged.size() + text.size()};
      } else {
        output.append(unchanged).append(renamed->second);
        unchanged = {};
      }
    }

    void enterOC_Variable(const SyntaxTree::Node& /*node*/) { insideVariable = true; }

    void exitOC_Variable(const SyntaxTree::Node& /*node*/) { insideVariable = false; }

    const SyntaxTree& tree;
    const std::unordered_map<std::string, std::string>& renames;
    std::string output;
    std::string_view unchanged;  // the text since the last renamed variable, not yet in `output`
    bool insideVariable = false;
  };

  Listener listener(tree, renames);
  listener.output.reserve(2 * tree.text.size());
  walk<Terminals::Visited>(tree, listener);
  return std::move(listener.output.append(listener.unchanged));
}

}  // namespace vorn
