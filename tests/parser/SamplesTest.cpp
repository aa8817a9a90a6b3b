// Tests the trees of the sample texts.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <tuple>
#include <vector>

#include "antlr/AntlrPipeline.h"
#include "antlr/TreeConverter.h"
#include "parser/BareLexer.h"
#include "parser/CompiledText.h"

using vorn::SyntaxTree;
using vorn::Verdict;

namespace {

struct Sample {
  std::string name;
  std::string text;
  bool isQuery;
};

std::vector<Sample> samplesIn(const std::string& folder) {
  std::vector<Sample> samples;
  const auto path = std::filesystem::path(VORN_EXAMPLES) / folder;
  for (const auto& entry : std::filesystem::directory_iterator(path)) {
    std::ifstream file(entry.path(), std::ios::binary);
    std::string text{std::istreambuf_iterator<char>(file), {}};
    // The line break at the end of the file is no part of the expression.
    text.resize(text.find_last_not_of("\r\n") + 1);
    samples.push_back({entry.path().filename().string(), text, folder == "queries"});
  }
  return samples;
}

// The texts of the examples, and texts with constructs that the examples lack.
std::vector<Sample> samples() {
  std::vector<Sample> all = samplesIn("queries");
  for (const Sample& filter : samplesIn("filters")) {
    all.push_back(filter);
  }
  for (const char* query :
       {"\uFEFFRETURN 1", "CALL a.b", "CALL a.b() YIELD c AS d", "CREATE (a) ;",
        " RETURN *, 1 AS b", "MATCH p = shortestPath((a)-[*1..]->(b)) RETURN p",
        "MATCH (((a)--(b))) RETURN 1",
        "MERGE (a) ON CREATE SET a.b = 1, a:C, a += {d: 1} ON MATCH SET a = $p REMOVE a.b, a:C",
        "RETURN [x IN [(a)-[b]-(c) | 1] | EXISTS { RETURN 1 AS d UNION RETURN 2 AS d }] AS e"}) {
    all.push_back({query, query, true});
  }
  for (const char* filter : {"(a)-[b]-(c)-[d]-(e.f)", "(a)--(b)--(c + 1)", "(a)--(b + 1)--(c)",
                             "any(x IN xs) AND any(1) OR count(*) > count", "a.b.c(d).e:F:G",
                             "[x IN xs] + [x IN xs WHERE x] + [p = (a)--() WHERE a | p]", "\uFEFFn",
                             "CASE n.a WHEN 1 THEN $p ELSE {a: -1, b: n[0], c: n[1..2]} END"}) {
    all.push_back({filter, filter, false});
  }
  return all;
}

Verdict parsed(CompiledText& text, const Sample& sample) {
  return sample.isQuery ? text.parseQuery() : text.parseExpression();
}

TEST(Samples, AreThere) {
  EXPECT_GE(samplesIn("queries").size(), 19U);
  EXPECT_GE(samplesIn("filters").size(), 9U);
}

TEST(Samples, AreAccepted) {
  for (const Sample& sample : samples()) {
    CompiledText text(sample.text);
    EXPECT_EQ(parsed(text, sample), Verdict::Accepted) << sample.name;
  }
}

TEST(Samples, AreDividedAsByTheBareLexer) {
  BareLexer bare;
  for (const Sample& sample : samples()) {
    expectTokensOfTheBareLexer(bare, sample.text);
  }
}

// Expects the nodes from `first` up to `end` inside the tokens of their parent.
void expectNested(const SyntaxTree& tree, std::uint32_t parent, std::uint32_t first,
                  std::uint32_t end, std::uint32_t firstToken, std::uint32_t lastToken) {
  for (std::uint32_t at = first; at < end; at = tree.nodes[at].end) {
    const SyntaxTree::Node& node = tree.nodes[at];
    ASSERT_GE(node.first, firstToken);
    ASSERT_LE(node.first, node.last);
    ASSERT_LE(node.last, lastToken);
    ASSERT_GT(node.end, at);
    ASSERT_LE(node.end, end);
    ASSERT_EQ(node.parent, parent);
    expectNested(tree, at, at + 1, node.end, node.first, node.last);
    firstToken = node.last + 1;
  }
}

TEST(Samples, HaveNodesThatNest) {
  for (const Sample& sample : samples()) {
    SCOPED_TRACE(sample.name);
    CompiledText text(sample.text);
    ASSERT_EQ(parsed(text, sample), Verdict::Accepted);
    expectNested(text.tree(), SyntaxTree::none, 0,
                 static_cast<std::uint32_t>(text.tree().nodes.size()), 0,
                 static_cast<std::uint32_t>(text.tree().tokenCount() - 1));
  }
}

TEST(Samples, OfFiltersAreAllOneNode) {
  for (const Sample& sample : samples()) {
    if (!sample.isQuery) {
      CompiledText text(sample.text);
      ASSERT_EQ(parsed(text, sample), Verdict::Accepted);
      const SyntaxTree::Node& root = text.tree().nodes.front();
      EXPECT_EQ(root.rule, vorn::TreeRule::oC_Expression);
      EXPECT_EQ(root.first, 0U);
      EXPECT_EQ(root.last + 1, text.tree().tokenCount());
      EXPECT_EQ(root.end, text.tree().nodes.size());
    }
  }
}

using Parts = std::tuple<int, std::uint32_t, std::uint32_t, std::uint32_t, std::uint32_t>;

std::vector<Parts> nodesOf(const SyntaxTree& tree) {
  std::vector<Parts> nodes;
  std::transform(tree.nodes.begin(), tree.nodes.end(), std::back_inserter(nodes),
                 [](const SyntaxTree::Node& node) {
                   return Parts(static_cast<int>(node.rule), node.first, node.last, node.end,
                                node.parent);
                 });
  return nodes;
}

TEST(Samples, HaveTheNodesOfTheAntlrTree) {
  for (const Sample& sample : samples()) {
    CompiledText compiled(sample.text);
    ASSERT_EQ(parsed(compiled, sample), Verdict::Accepted) << sample.name;
    CompiledText converted(sample.text);
    vorn::AntlrPipeline pipeline(sample.text);
    antlr4::ParserRuleContext* const tree =
        sample.isQuery ? static_cast<antlr4::ParserRuleContext*>(&pipeline.parseQuery())
                       : &pipeline.parseExpression();
    vorn::convertNodes(*tree, converted.tree());
    EXPECT_EQ(nodesOf(compiled.tree()), nodesOf(converted.tree())) << sample.name;
  }
}

TEST(ConvertedNodes, TakeThePlaceOfThoseBefore) {
  CompiledText text("a + b");
  ASSERT_EQ(text.parseExpression(), Verdict::Accepted);
  const std::vector<Parts> before = nodesOf(text.tree());
  vorn::AntlrPipeline pipeline("a + b");
  vorn::convertNodes(pipeline.parseExpression(), text.tree());
  EXPECT_EQ(nodesOf(text.tree()), before);
}

TEST(ConvertedNodes, EndWhereTheExpressionDoes) {
  const std::string filter = "a.b RETURN c";
  CompiledText text(filter);
  vorn::AntlrPipeline pipeline(filter);
  vorn::convertNodes(pipeline.parseExpression(), text.tree());
  EXPECT_EQ(text.tree().textOf(text.tree().nodes.front()), "a.b");
  EXPECT_EQ(text.texts(vorn::TreeRule::oC_Variable), std::vector<std::string>{"a"});
}

}  // namespace
