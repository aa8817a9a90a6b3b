#include "CypherParser.h"
#include "Subject.h"
#include "parser/CompiledLexer.h"
#include "parser/CompiledParser.h"
#include "parser/SyntaxTree.h"

namespace compare {

namespace {

std::uint32_t parserRuleOf(vorn::TreeRule rule) {
  for (std::uint32_t i = 0; i < vorn::treeRuleOfParserRule.size(); ++i) {
    if (vorn::treeRuleOfParserRule[i] == static_cast<std::int8_t>(rule)) {
      return i;
    }
  }
  return vorn::CypherParser::RuleOC_Dash + 1;
}

}  // namespace

Parse parseCompiled(std::string_view utf8, Entry entry) {
  vorn::SyntaxTree tree(utf8);
  vorn::tokenise(tree);
  Parse parse;
  parse.lexed = tree.isWhole;
  for (std::size_t i = 0; parse.lexed && i < tree.tokenCount(); ++i) {
    parse.tokens.push_back({tree.types[i], tree.starts[i]});
  }
  const vorn::Verdict verdict =
      entry == Entry::Query ? vorn::parseQuery(tree) : vorn::parseExpression(tree);
  parse.accepted = verdict == vorn::Verdict::Accepted;
  for (std::size_t i = 0; parse.accepted && i < tree.nodes.size(); ++i) {
    const vorn::SyntaxTree::Node& node = tree.nodes[i];
    parse.nodes.push_back({parserRuleOf(node.rule), node.first, node.last, node.end});
  }
  return parse;
}

}  // namespace compare
