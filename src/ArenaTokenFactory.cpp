#include "ArenaTokenFactory.h"

#include <CommonToken.h>

namespace vorn {

namespace {

// The token stream casts every token. A class that no other file can name is told from others by
// its address alone, the rest by their names.
class ArenaToken final : public antlr4::CommonToken {
 public:
  using CommonToken::CommonToken;

  static void* operator new(std::size_t size, std::pmr::memory_resource& memory) {
    return memory.allocate(size);
  }
  // NOLINTNEXTLINE(cert-dcl54-cpp,misc-new-delete-overloads): stands beside the operator above.
  static void operator delete(void* /*token*/) noexcept {}
  static void operator delete(void* /*token*/, std::pmr::memory_resource& /*memory*/) noexcept {}
};

}  // namespace

std::unique_ptr<antlr4::CommonToken> ArenaTokenFactory::create(
    std::pair<antlr4::TokenSource*, antlr4::CharStream*> source, std::size_t type,
    const std::string& text, std::size_t channel, std::size_t start, std::size_t stop,
    std::size_t line, std::size_t charPositionInLine) {
  std::unique_ptr<antlr4::CommonToken> token(new (memory)
                                                 ArenaToken(source, type, channel, start, stop));
  token->setLine(line);
  token->setCharPositionInLine(charPositionInLine);
  if (!text.empty()) {
    token->setText(text);
  }
  return token;
}

std::unique_ptr<antlr4::CommonToken> ArenaTokenFactory::create(std::size_t type,
                                                               const std::string& text) {
  return std::unique_ptr<antlr4::CommonToken>(new (memory) ArenaToken(type, text));
}

}  // namespace vorn
