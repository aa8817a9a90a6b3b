// The library must accept texts that are derived from the grammar, and keep every property for
// damaged ones.

#include <ANTLRInputStream.h>
#include <CommonTokenStream.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "CypherLexer.h"
#include "Derivation.h"
#include "Input.h"
#include "Properties.h"

namespace {

using Tokens = std::vector<Derivation::Token>;

std::string textOf(const Tokens& tokens) {
  std::string text;
  for (const Derivation::Token& token : tokens) {
    text += token.text;
  }
  return text;
}

// Whether the lexer finds exactly these tokens. It does not if two of them run together, or if a
// name is written like a keyword.
bool readAs(const Tokens& tokens, const std::string& text) {
  antlr4::ANTLRInputStream input(text);
  vorn::CypherLexer lexer(&input);
  lexer.removeErrorListeners();
  antlr4::CommonTokenStream stream(&lexer);
  stream.fill();
  std::vector<antlr4::Token*> found = stream.getTokens();
  found.pop_back();
  return std::equal(tokens.begin(), tokens.end(), found.begin(), found.end(),
                    [](const Derivation::Token& token, antlr4::Token* other) {
                      return token.type == other->getType() && token.text == other->getText();
                    });
}

// Removes, copies or swaps tokens. The bytes choose.
void damage(Tokens& tokens, std::string_view bytes) {
  constexpr std::size_t bytesPerEdit = 3;
  constexpr std::size_t mostTokens = 1000;
  const auto at = [&](char byte) { return static_cast<unsigned char>(byte) % tokens.size(); };
  for (; bytes.size() >= bytesPerEdit && !tokens.empty() && tokens.size() < mostTokens;
       bytes.remove_prefix(bytesPerEdit)) {
    const std::size_t one = at(bytes[1]);
    const std::size_t other = at(bytes[2]);
    switch (static_cast<unsigned char>(bytes[0]) % 3) {
      case 0:
        tokens.erase(tokens.begin() + static_cast<std::ptrdiff_t>(one));
        break;
      case 1: {
        Derivation::Token copy = tokens[other];
        tokens.insert(tokens.begin() + static_cast<std::ptrdiff_t>(one), std::move(copy));
        break;
      }
      default:
        std::swap(tokens[one], tokens[other]);
    }
  }
}

}  // namespace

// The input is the choices of a derivation. The bytes that are left over choose the damage.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Derivation derivation = derive(data, size);
  const std::string text = textOf(derivation.tokens);
  if (readAs(derivation.tokens, text)) {
    (derivation.isQuery ? checkIsQuery : checkIsExpression)(wideFrom(text));
  }
  damage(derivation.tokens, bytesOf(data, size).substr(derivation.used));
  const vorn::WideString damaged = wideFrom(textOf(derivation.tokens));
  (derivation.isQuery ? checkColumns : checkUsages)(damaged);
  return 0;
}
