#pragma once

#include <TokenFactory.h>

#include <cstddef>
#include <memory>
#include <memory_resource>
#include <string>
#include <utility>

namespace antlr4 {
class CommonToken;
}  // namespace antlr4

namespace vorn {

/// Makes tokens as the runtime's own factory does, of memory that is released as a whole.
class ArenaTokenFactory final : public antlr4::TokenFactory<antlr4::CommonToken> {
 public:
  /// The memory must outlive the tokens.
  explicit ArenaTokenFactory(std::pmr::memory_resource& tokenMemory) : memory(tokenMemory) {}

  std::unique_ptr<antlr4::CommonToken> create(
      std::pair<antlr4::TokenSource*, antlr4::CharStream*> source, std::size_t type,
      const std::string& text, std::size_t channel, std::size_t start, std::size_t stop,
      std::size_t line, std::size_t charPositionInLine) override;

  std::unique_ptr<antlr4::CommonToken> create(std::size_t type, const std::string& text) override;

 private:
  std::pmr::memory_resource& memory;
};

}  // namespace vorn
