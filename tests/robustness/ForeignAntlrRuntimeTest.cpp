// Tests a host with its own build of an ANTLR runtime and a Cypher parser, whose symbols are
// visible to the whole process.

#include <ANTLRInputStream.h>
#include <CommonTokenStream.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "CypherLexer.h"
#include "CypherParser.h"
#include "robustness/LoadedLibrary.h"

namespace {

// The tree by the host's own parser, which has the same name as the library's.
std::string treeByTheHost() {
  antlr4::ANTLRInputStream input(std::string_view("n.a = 1 AND (n)-->(m)"));
  vorn::CypherLexer lexer(&input);
  antlr4::CommonTokenStream tokens(&lexer);
  vorn::CypherParser parser(&tokens);
  return parser.oC_Expression()->toStringTree(&parser);
}

std::vector<std::string> answersByTheLibrary() {
  const LoadedLibrary library;
  std::vector<std::string> all;
  for (const Question& question : questions()) {
    all.push_back(answer(library.calls(), question));
    treeByTheHost();
  }
  return all;
}

TEST(ForeignAntlrRuntime, LivesBesideTheLibrarys) {
  const std::string tree = treeByTheHost();
  const std::vector<std::string> answers = answersByTheLibrary();
  EXPECT_EQ(treeByTheHost(), tree);
  EXPECT_EQ(answersByTheLibrary(), answers);
  EXPECT_EQ(answers.at(1), "status 0, größe 0, count(*) 0");
}

// The host's runtime does not catch an exception of the library's. Both are std::exceptions.
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
