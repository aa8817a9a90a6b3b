// A host with an ANTLR runtime of its own, of another build, whose symbols all the process can see.

#include <ANTLRInputStream.h>
#include <CommonTokenStream.h>
#include <gtest/gtest.h>
#include <tree/xpath/XPathLexer.h>

#include <string>
#include <vector>

#include "robustness/LoadedLibrary.h"

namespace {

std::vector<std::size_t> tokensByTheHost() {
  antlr4::ANTLRInputStream input(std::string_view("//a/*[!b]"));
  XPathLexer lexer(&input);
  antlr4::CommonTokenStream tokens(&lexer);
  tokens.fill();
  std::vector<std::size_t> types;
  for (const antlr4::Token* token : tokens.getTokens()) {
    types.push_back(token->getType());
  }
  return types;
}

std::vector<std::string> answersByTheLibrary() {
  const LoadedLibrary library;
  std::vector<std::string> all;
  for (const Question& question : questions()) {
    all.push_back(answer(library.calls(), question));
    tokensByTheHost();
  }
  return all;
}

TEST(ForeignAntlrRuntime, LivesBesideTheLibrarys) {
  const std::vector<std::size_t> tokens = tokensByTheHost();
  const std::vector<std::string> answers = answersByTheLibrary();
  EXPECT_EQ(tokensByTheHost(), tokens);
  EXPECT_EQ(answersByTheLibrary(), answers);
  EXPECT_EQ(answers.at(1), "status 0, 0x1F + 017 0, größe 0");
}

// An exception of the library's runtime is none of the host's, and both are std::exception.
TEST(ForeignAntlrRuntime, HasExceptionsOfItsOwn) {
  const LoadedLibrary library;
  try {
    library.calls().usages(u"n.a = ");
    FAIL();
  } catch (const std::exception& error) {
    EXPECT_EQ(std::string(error.what()).substr(0, 9), "line 1:6 ");
  }
}

}  // namespace
