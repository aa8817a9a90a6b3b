// A host with an ANTLR runtime and a Cypher parser of its own, of another build, whose symbols all
// the process can see.

#include <ANTLRInputStream.h>
#include <CommonTokenStream.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "CypherLexer.h"
#include "CypherParser.h"
#include "robustness/LoadedLibrary.h"

namespace {

// What the host's own parser, which even has the name of the library's, makes of a text.
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
