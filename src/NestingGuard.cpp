#include "NestingGuard.h"

#include <Parser.h>
#include <ParserRuleContext.h>
#include <Token.h>

#include <algorithm>
#include <iterator>
#include <stdexcept>

#include "CypherLexer.h"

namespace vorn {

namespace {

// What a parse needs at any depth: for building the tables, prediction within one level, and
// throwing.
constexpr std::uintptr_t flatReserve = std::uintptr_t{32} * 1024;

// What a level of nesting takes of the parser's own recursion: 64 bytes for each rule from one
// bracket to the next, which are 17 in most, and 23 in a subquery. The 19 of `[x IN a = a IN [` and
// the 26 where a branch of a UNION merges find room in what prediction leaves of its reserve.
constexpr std::uintptr_t subquerySize = std::uintptr_t{24} * 64;
constexpr std::uintptr_t levelSize = std::uintptr_t{18} * 64;

// A map of properties lies two rules from the bracket of its pattern.
constexpr std::uintptr_t propertiesSize = std::uintptr_t{3} * 64;

// The grammar's symbols for brackets have no names of their own.
enum Bracket : std::size_t {
  openParenthesis = CypherLexer::T__5,
  closeParenthesis = CypherLexer::T__6,
  openSquare = CypherLexer::T__7,
  closeSquare = CypherLexer::T__8,
  openBrace = CypherLexer::T__23,
  closeBrace = CypherLexer::T__24,
};
constexpr std::size_t comma = CypherLexer::T__1;
constexpr std::size_t colon = CypherLexer::T__9;
constexpr std::size_t bar = CypherLexer::T__10;
constexpr std::size_t dot = CypherLexer::T__22;

bool isName(std::size_t tokenType) {
  return tokenType == CypherLexer::UnescapedSymbolicName ||
         tokenType == CypherLexer::EscapedSymbolicName || tokenType == CypherLexer::HexLetter;
}

}  // namespace

NestingGuard::NestingGuard() {
  const std::uintptr_t start = stackPosition();
  const std::uintptr_t end = stackEnd(start);
  const std::uintptr_t size = start - end;
  if (size < flatReserve) {
    refuse();
  }
  flatEnd = end + flatReserve;
  const std::uintptr_t usable = size - flatReserve;
  // An eighth is for what no one has measured.
  deepestRule = flatEnd + usable / 8;
  // What may follow an error is looked up by recursion over all open rules. It takes 80 bytes where
  // the parser takes 64, so 1.4 times as much as what is used is kept free for it.
  deepestError = flatEnd + 7 * usable / 12;
}

void NestingGuard::refuse() {
  throw std::length_error("the openCypher text nests too deeply for the stack");
}

void NestingGuard::readToken(const antlr4::Token& token) {
  const std::size_t role = roleOf(token.getType());
  switch (role) {
    case openParenthesis:
    case openSquare:
    case openBrace:
    case CypherLexer::CASE:
      open(token);
      break;
    case closeParenthesis:
    case closeSquare:
    case closeBrace:
      closeBracket();
      break;
    case CypherLexer::END:
      closeCase();
      break;
    case colon:
      readColon();
      break;
    case CypherLexer::SP:
      return;
    default:
      break;
  }
  last = {role, last[0], last[1]};
}

// Reserved words serve as names of labels, relationship types and properties too.
std::size_t NestingGuard::roleOf(std::size_t tokenType) const {
  const bool isWordOfALevel = tokenType == CypherLexer::CASE || tokenType == CypherLexer::END ||
                              tokenType == CypherLexer::EXISTS;
  return isWordOfALevel && isNameExpected() ? std::size_t{CypherLexer::UnescapedSymbolicName}
                                            : tokenType;
}

// An expression may begin after a comma or a bar in a list, and after the colon in a map.
bool NestingGuard::isNameExpected() const {
  switch (last[0]) {
    case dot:
    case openBrace:
      return true;
    case comma:
      return isDirectlyIn(Content::MapEntries);
    case bar:
      return isDirectlyIn(Content::RelationshipTypes);
    case colon: {
      // An empty map before the colon is no key.
      const bool isAfterKey = last[1] != closeBrace && (last[2] == openBrace || last[2] == comma);
      return !isAfterKey || !isDirectlyIn(Content::MapEntries);
    }
    default:
      return false;
  }
}

bool NestingGuard::isDirectlyIn(Content content) const {
  return !openings.empty() && openings.back().content == content;
}

// Prediction reads ahead of the parser. The levels it opens there are refused as if the parser
// stood in them already.
void NestingGuard::open(const antlr4::Token& token) {
  const bool isSubquery = token.getType() == openBrace && last[0] == CypherLexer::EXISTS;
  const bool isMap = token.getType() == openBrace && !isSubquery;
  // No expression begins right behind a name.
  const bool holdsProperties = isMap && isName(last[0]);
  const std::uintptr_t size = isSubquery        ? subquerySize
                              : holdsProperties ? propertiesSize
                                                : levelSize;
  const std::uintptr_t depth = openings.empty() ? 0 : openings.back().depth;
  openings.push_back({token.getStartIndex(), token.getType(), depth + size,
                      isMap ? Content::MapEntries : Content::Other});
  // It may get there, and takes some 100 bytes for a rule on Windows. Prediction takes half as much
  // at most: after an ambiguity it lets go of its contexts by recursion.
  refuseBelow(flatEnd + 5 * sizeAhead() / 3);
}

// A colon right behind the bracket, or behind one name there, begins the types of a relationship,
// or the labels of a list's first item. But such a list has no bar.
void NestingGuard::readColon() {
  const bool isFirst = last[0] == openSquare || (last[1] == openSquare && last[0] != closeSquare);
  if (isFirst && !openings.empty()) {
    openings.back().content = Content::RelationshipTypes;
  }
}

// Brackets need not match: neither the parser nor prediction goes on after one that does not.
void NestingGuard::closeBracket() {
  while (!openings.empty() && openings.back().tokenType == CypherLexer::CASE) {
    openings.pop_back();
  }
  if (!openings.empty()) {
    openings.pop_back();
  }
}

void NestingGuard::closeCase() {
  if (!openings.empty() && openings.back().tokenType == CypherLexer::CASE) {
    openings.pop_back();
  }
}

std::uintptr_t NestingGuard::sizeAhead() const {
  const antlr4::ParserRuleContext* rule = parser->getContext();
  const antlr4::Token* first = rule == nullptr ? nullptr : rule->start;
  const std::size_t ruleStart = first == nullptr ? 0 : first->getStartIndex();
  const auto ahead = std::lower_bound(
      openings.begin(), openings.end(), ruleStart,
      [](const Opening& opening, std::size_t position) { return opening.position < position; });
  const std::uintptr_t behind = ahead == openings.begin() ? 0 : std::prev(ahead)->depth;
  return openings.back().depth - behind;
}

}  // namespace vorn
