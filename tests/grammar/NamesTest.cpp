#include <gtest/gtest.h>

#include "support/Accepts.h"

namespace {

const std::vector<std::string> reservedWords = {
    "UNION",  "ALL",        "OPTIONAL", "MATCH",    "UNWIND",  "AS",     "MERGE",
    "ON",     "CREATE",     "SET",      "DETACH",   "DELETE",  "REMOVE", "WITH",
    "RETURN", "DISTINCT",   "ORDER",    "BY",       "SKIP",    "LIMIT",  "ASCENDING",
    "ASC",    "DESCENDING", "DESC",     "WHERE",    "OR",      "XOR",    "AND",
    "NOT",    "STARTS",     "ENDS",     "CONTAINS", "IN",      "IS",     "NULL",
    "CASE",   "ELSE",       "END",      "WHEN",     "THEN",    "EXISTS", "TRUE",
    "FALSE",  "CONSTRAINT", "DO",       "FOR",      "REQUIRE", "UNIQUE", "MANDATORY",
    "SCALAR", "OF",         "ADD",      "DROP"};

const std::vector<std::string> wordsThatAreNoNames = {"CALL", "YIELD", "SHORTESTPATH",
                                                      "ALLSHORTESTPATHS"};

const std::vector<std::string> symbolicNames = {"count",  "any",     "none", "single",  "f",
                                                "filter", "extract", "name", "`a name`"};

TEST(ReservedWords, AreNamesOfPropertiesLabelsAndTypes) {
  ASSERT_EQ(reservedWords.size(), 53U);
  for (const std::string& word : reservedWords) {
    EXPECT_TRUE(acceptsExpression("n." + word)) << word;
    EXPECT_TRUE(acceptsExpression("{" + word + ": 1}")) << word;
    EXPECT_TRUE(accepts("MATCH (n:" + word + ")-[r:" + word + "]-() RETURN n")) << word;
  }
}

TEST(ReservedWords, AreNoNamesOfVariablesFunctionsAndParameters) {
  for (const std::string& word : reservedWords) {
    EXPECT_FALSE(accepts("MATCH (" + word + ") RETURN 1")) << word;
    EXPECT_FALSE(accepts("RETURN 1 AS " + word)) << word;
    EXPECT_FALSE(acceptsExpression("$" + word)) << word;
    EXPECT_FALSE(accepts("CALL " + word + "() RETURN 1")) << word;
  }
}

TEST(ReservedWords, AreNoNamesInANamespaceOrOfAResultField) {
  for (const std::string& word : reservedWords) {
    EXPECT_FALSE(acceptsExpression("f." + word + "(1)")) << word;
    EXPECT_FALSE(acceptsExpression(word + ".f(1)")) << word;
    EXPECT_FALSE(accepts("CALL " + word + ".p() RETURN 1")) << word;
    EXPECT_FALSE(accepts("CALL p() YIELD " + word + " AS x RETURN 1")) << word;
  }
}

TEST(ReservedWords, AreNamesInAnyCase) {
  EXPECT_TRUE(acceptsExpression("n.mAtCh"));
  EXPECT_FALSE(accepts("RETURN 1 AS mAtCh"));
}

TEST(ReservedWords, AreNamesOfVariablesBetweenBackQuotes) {
  for (const std::string& word : reservedWords) {
    EXPECT_TRUE(accepts("MATCH (`" + word + "`) RETURN `" + word + "`")) << word;
  }
}

TEST(CallYieldAndShortestPaths, AreNoNamesAtAll) {
  for (const std::string& word : wordsThatAreNoNames) {
    EXPECT_FALSE(acceptsExpression("n." + word)) << word;
    EXPECT_FALSE(acceptsExpression("{" + word + ": 1}")) << word;
    EXPECT_FALSE(accepts("MATCH (n:" + word + ") RETURN n")) << word;
    EXPECT_FALSE(accepts("MATCH ()-[r:" + word + "]-() RETURN r")) << word;
    EXPECT_FALSE(accepts("RETURN 1 AS " + word)) << word;
    EXPECT_FALSE(accepts("MATCH (" + word + ") RETURN 1")) << word;
    EXPECT_FALSE(accepts("CALL " + word + "() RETURN 1")) << word;
    EXPECT_FALSE(accepts("CALL p() YIELD " + word + " AS x RETURN 1")) << word;
    EXPECT_FALSE(acceptsExpression("$" + word)) << word;
    EXPECT_FALSE(acceptsExpression(word + "(1)")) << word;
    EXPECT_FALSE(acceptsExpression("f." + word + "(1)")) << word;
  }
}

TEST(CallYieldAndShortestPaths, AreNamesBetweenBackQuotes) {
  for (const std::string& word : wordsThatAreNoNames) {
    EXPECT_TRUE(accepts("MATCH (`" + word + "`:`" + word + "` {`" + word + "`: 1}) RETURN 1"))
        << word;
  }
}

TEST(SymbolicNames, ServeEverywhere) {
  for (const std::string& name : symbolicNames) {
    EXPECT_TRUE(accepts("MATCH (" + name + ":" + name + " {" + name + ": $" + name + "}) CALL " +
                        name + "." + name + "() YIELD " + name + " AS " + name + " RETURN " + name +
                        "." + name + "(1), " + name + "." + name + " AS " + name))
        << name;
  }
}

}  // namespace
