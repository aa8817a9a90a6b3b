// Tests the order in which a walk tells a listener of nodes and tokens.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "parser/CompiledText.h"
#include "parser/TreeWalk.h"

using vorn::SyntaxTree;
using vorn::Terminals;

namespace {

using Events = std::vector<std::string>;

class Recorder : public vorn::TreeListener {
 public:
  explicit Recorder(const SyntaxTree& tree) : tree_(tree) {}

  void enterOC_Expression(const SyntaxTree::Node& node) { record("+Expression", node); }
  void exitOC_Expression(const SyntaxTree::Node& node) { record("-Expression", node); }
  void enterOC_Atom(const SyntaxTree::Node& node) { record("+Atom", node); }
  void exitOC_Atom(const SyntaxTree::Node& node) { record("-Atom", node); }
  void enterOC_Variable(const SyntaxTree::Node& node) { record("+Variable", node); }
  void exitOC_Variable(const SyntaxTree::Node& node) { record("-Variable", node); }
  void enterOC_ProjectionItem(const SyntaxTree::Node& node) { record("+Item", node); }
  void exitOC_ProjectionItem(const SyntaxTree::Node& node) { record("-Item", node); }
  void enterOC_NodePattern(const SyntaxTree::Node& node) { record("+Node", node); }
  void exitOC_NodePattern(const SyntaxTree::Node& node) { record("-Node", node); }

  void visitTerminal(std::size_t token) { events.emplace_back(tree_.textOf(token)); }

  Events events;

 private:
  void record(const std::string& what, const SyntaxTree::Node& node) {
    events.push_back(what + " " + std::string(tree_.textOf(node)));
  }

  const SyntaxTree& tree_;
};

template <Terminals terminals>
Events eventsOf(const CompiledText& text) {
  Recorder recorder(text.tree());
  vorn::walk<terminals>(text.tree(), recorder);
  return recorder.events;
}

TEST(TreeWalk, EntersAnOuterNodeBeforeThoseInsideItAndLeavesItBehindThem) {
  CompiledText text("(a) + b");
  ASSERT_EQ(text.parseExpression(), vorn::Verdict::Accepted);
  EXPECT_EQ(eventsOf<Terminals::Skipped>(text),
            (Events{"+Expression (a) + b", "+Atom (a)", "+Expression a", "+Atom a", "+Variable a",
                    "-Variable a", "-Atom a", "-Expression a", "-Atom (a)", "+Atom b",
                    "+Variable b", "-Variable b", "-Atom b", "-Expression (a) + b"}));
}

TEST(TreeWalk, VisitsEachTokenInsideTheInnermostNodeAroundIt) {
  CompiledText text("(a) + b");
  ASSERT_EQ(text.parseExpression(), vorn::Verdict::Accepted);
  EXPECT_EQ(eventsOf<Terminals::Visited>(text), (Events{"+Expression (a) + b",
                                                        "+Atom (a)",
                                                        "(",
                                                        "+Expression a",
                                                        "+Atom a",
                                                        "+Variable a",
                                                        "a",
                                                        "-Variable a",
                                                        "-Atom a",
                                                        "-Expression a",
                                                        ")",
                                                        "-Atom (a)",
                                                        " ",
                                                        "+",
                                                        " ",
                                                        "+Atom b",
                                                        "+Variable b",
                                                        "b",
                                                        "-Variable b",
                                                        "-Atom b",
                                                        "-Expression (a) + b"}));
}

TEST(TreeWalk, VisitsTheTokensOfAnExpressionThatAreItsText) {
  for (const char* filter : {"a", "n.a = [x IN (a)--() | x] /* c */ AND 'b'", "$p", "{a: 1}.b"}) {
    CompiledText text(filter);
    ASSERT_EQ(text.parseExpression(), vorn::Verdict::Accepted) << filter;
    struct Joiner : vorn::TreeListener {
      explicit Joiner(const SyntaxTree& itsTree) : tree(itsTree) {}
      void visitTerminal(std::size_t token) { joined += tree.textOf(token); }
      const SyntaxTree& tree;
      std::string joined;
    } joiner(text.tree());
    vorn::walk<Terminals::Visited>(text.tree(), joiner);
    EXPECT_EQ(joiner.joined, filter);
  }
}

TEST(TreeWalk, EntersNodesSideBySideInTheOrderOfTheText) {
  CompiledText text("MATCH (a), (b) RETURN a, b");
  ASSERT_EQ(text.parseQuery(), vorn::Verdict::Accepted);
  Events outer;
  for (const std::string& event : eventsOf<Terminals::Skipped>(text)) {
    if (event.find("Item") != std::string::npos || event.find("Node") != std::string::npos) {
      outer.push_back(event);
    }
  }
  EXPECT_EQ(outer, (Events{"+Node (a)", "-Node (a)", "+Node (b)", "-Node (b)", "+Item a", "-Item a",
                           "+Item b", "-Item b"}));
}

TEST(TreeWalk, TellsNothingOfATreeWithoutNodes) {
  CompiledText text("CALL a.b");
  ASSERT_EQ(text.parseQuery(), vorn::Verdict::Accepted);
  EXPECT_EQ(eventsOf<Terminals::Visited>(text), Events{});
}

TEST(TreeWalk, TellsOfEnteringAndLeavingEachNodeOnce) {
  CompiledText text(
      "MATCH p = (a:B)-[r]-(c) WITH a WHERE any(x IN [y IN z | y] WHERE x) UNWIND [(d)--() | 1] AS "
      "e "
      "RETURN (a)--(e), EXISTS { (f) }, e.g UNION RETURN 1");
  ASSERT_EQ(text.parseQuery(), vorn::Verdict::Accepted);
  std::size_t told = 0;
  // The listener records every rule.
  Recorder recorder(text.tree());
  vorn::walk(text.tree(), recorder);
  for (const SyntaxTree::Node& node : text.tree().nodes) {
    const bool isRecorded = node.rule == vorn::TreeRule::oC_Expression ||
                            node.rule == vorn::TreeRule::oC_Atom ||
                            node.rule == vorn::TreeRule::oC_Variable ||
                            node.rule == vorn::TreeRule::oC_ProjectionItem ||
                            node.rule == vorn::TreeRule::oC_NodePattern;
    told += isRecorded ? 2 : 0;
  }
  EXPECT_EQ(recorder.events.size(), told);
  EXPECT_GT(told, 50U);
}

}  // namespace
