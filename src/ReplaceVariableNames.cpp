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

std::string quotedUtf8(const WideString& name) {
  return quoteSymbolicName(StringUtf8ImplDetail::StringWideCharToUtf8Impl(name));
}

}  // namespace

WideString PropertyFilterExpressionInterrogator::replaceVariableNames(
    const std::unordered_map<WideString, WideString>& renames) const {
  // White space and comments are tokens of the tree, so its terminals in text order are the text.
  // Unlike the search for usages this does not validate: variables inside forbidden elements are
  // renamed too.
  struct Listener : CypherBaseListener {
    explicit Listener(const std::string& utf8Text) : source(utf8Text) {}

    void visitTerminal(antlr4::tree::TerminalNode* node) override {
      const std::string_view text = source.of(*node->getSymbol());
      if (!insideVariable) {
        output += text;
        return;
      }
      const auto renamed = renames.find(quoteSymbolicName(text));
      output += renamed == renames.end() ? text : std::string_view(renamed->second);
    }

    void enterOC_Variable(CypherParser::OC_VariableContext* /*ctx*/) override {
      insideVariable = true;
    }

    void exitOC_Variable(CypherParser::OC_VariableContext* /*ctx*/) override {
      insideVariable = false;
    }

    SourceText source;
    std::string output;                                    // UTF-8
    std::unordered_map<std::string, std::string> renames;  // UTF-8, back-quoted on both sides
    bool insideVariable = false;
  };

  Listener listener(utf8Text);
  listener.output.reserve(2 * utf8Text.size());
  listener.renames.reserve(renames.size());
  for (const auto& [oldName, newName] : renames) {
    std::string replacement = quotedUtf8(newName);
    listener.renames.insert_or_assign(quotedUtf8(oldName), std::move(replacement));
  }
  walk(listener, *parseTree, {CypherParser::RuleOC_Variable});
  return StringUtf8ImplDetail::StringUtf8ToWideCharImpl(listener.output);
}

}  // namespace vorn
