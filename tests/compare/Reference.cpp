#include "Reference.h"

#include <cstddef>
#include <vector>

#include "BarePipeline.h"
#include "ReferenceAnswers.h"

namespace compare {

namespace {

using Parser = vorn::CypherParser;

bool isListed(std::size_t rule) {
  switch (rule) {
    case Parser::RuleOC_Union:
    case Parser::RuleOC_Unwind:
    case Parser::RuleOC_With:
    case Parser::RuleOC_ProjectionItems:
    case Parser::RuleOC_ProjectionItem:
    case Parser::RuleOC_Expression:
    case Parser::RuleOC_PatternPart:
    case Parser::RuleOC_NodePattern:
    case Parser::RuleOC_RelationshipDetail:
    case Parser::RuleOC_PropertyOrLabelsExpression:
    case Parser::RuleOC_Atom:
    case Parser::RuleOC_ListComprehension:
    case Parser::RuleOC_PatternComprehension:
    case Parser::RuleOC_Quantifier:
    case Parser::RuleOC_PatternPredicate:
    case Parser::RuleOC_ExistentialSubquery:
    case Parser::RuleOC_Variable:
    case Parser::RuleOC_PropertyKeyName:
    case Parser::RuleOC_LabelName:
      return true;
    default:
      return false;
  }
}

std::uint32_t number(std::size_t value) { return static_cast<std::uint32_t>(value); }

void collect(antlr4::ParserRuleContext& context, std::vector<Node>& nodes) {
  const std::size_t place = nodes.size();
  const bool listed = isListed(context.getRuleIndex());
  if (listed) {
    nodes.push_back({number(context.getRuleIndex()), number(context.getStart()->getTokenIndex()),
                     number(context.getStop()->getTokenIndex()), 0});
  }
  for (antlr4::tree::ParseTree* child : context.children) {
    if (auto* inner = dynamic_cast<antlr4::ParserRuleContext*>(child)) {
      collect(*inner, nodes);
    }
  }
  if (listed) {
    nodes[place].end = number(nodes.size());
  }
}

// The offset of each code point, apart from a byte order mark at the start.
std::vector<std::uint32_t> byteOffsets(std::string_view utf8) {
  constexpr std::string_view mark = "\xEF\xBB\xBF";
  std::vector<std::uint32_t> offsets;
  for (std::size_t i = utf8.substr(0, mark.size()) == mark ? mark.size() : 0; i < utf8.size();
       ++i) {
    if ((static_cast<unsigned char>(utf8[i]) & 0xC0U) != 0x80) {
      offsets.push_back(number(i));
    }
  }
  return offsets;
}

}  // namespace

struct Reference::Pipeline : BarePipeline {
  using BarePipeline::BarePipeline;
};

Reference::Reference(std::string_view utf8, Entry entry)
    : pipeline(std::make_unique<Pipeline>(utf8)) {
  lex(utf8);
  try {
    pipeline->run(entry);
    readTree(entry);
  } catch (const antlr4::ParseCancellationException& exception) {
    firstError = exception.what();
    errorAtEnd = pipeline->errors.atEnd;
  }
}

Reference::~Reference() = default;

void Reference::lex(std::string_view utf8) {
  try {
    pipeline->tokens.fill();
    found.lexed = true;
  } catch (const antlr4::ParseCancellationException&) {
    // The parser gets a new pipeline, since it must meet the error only if it reads that far.
    pipeline = std::make_unique<Pipeline>(utf8);
    return;
  }
  const std::vector<std::uint32_t> offsets = byteOffsets(utf8);
  for (const antlr4::Token* token : pipeline->tokens.getTokens()) {
    if (token->getType() != antlr4::Token::EOF) {
      found.tokens.push_back({number(token->getType()), offsets[token->getStartIndex()]});
    }
  }
}

void Reference::readTree(Entry entry) {
  // White space behind an expression is not in the tree.
  std::size_t end = pipeline->tree->getStop()->getTokenIndex() + 1;
  if (end + 1 == found.tokens.size() && found.tokens[end].type == vorn::CypherParser::SP) {
    ++end;
  }
  found.accepted = found.lexed && (entry == Entry::Query || end == found.tokens.size());
  if (found.accepted) {
    collect(*pipeline->tree, found.nodes);
  }
}

Columns Reference::columns() const {
  return firstError.empty() ? referenceColumns(*pipeline->tree) : Columns{1, {}};
}

Usages Reference::usages() const {
  return firstError.empty() ? referenceUsages(*pipeline->tree)
                            : Usages{Ending::Error, firstError, {}};
}

Renamed Reference::renamed(const Renames& renames) const {
  return firstError.empty() ? referenceRenamed(*pipeline->tree, renames)
                            : Renamed{Ending::Error, firstError, {}};
}

}  // namespace compare
