// Tests how an analysis finds nodes and texts in a tree.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "parser/CompiledText.h"

using vorn::SyntaxTree;
using vorn::TreeRule;

namespace {

TEST(SyntaxTree, GivesTheTextOfATokenAndOfANode) {
  CompiledText text("n.größe /* */ = '😀'");
  ASSERT_EQ(text.parseExpression(), vorn::Verdict::Accepted);
  const SyntaxTree& tree = text.tree();
  EXPECT_EQ(tree.textOf(2), "größe");
  EXPECT_EQ(tree.textOf(tree.tokenCount() - 1), "'😀'");
  EXPECT_EQ(tree.textOf(tree.nodes.front()), tree.text);
  EXPECT_EQ(text.texts(TreeRule::oC_PropertyOrLabelsExpression),
            (std::vector<std::string>{"n.größe", "'😀'"}));
}

TEST(SyntaxTree, LeavesAByteOrderMarkOutOfAllTexts) {
  CompiledText text("\uFEFFn.a");
  ASSERT_EQ(text.parseExpression(), vorn::Verdict::Accepted);
  EXPECT_EQ(text.tree().textOf(0), "n");
  EXPECT_EQ(text.tree().textOf(text.tree().nodes.front()), "n.a");
}

// The nodes of a rule directly inside the first node of another one.
std::vector<std::string> children(const SyntaxTree& tree, TreeRule parent) {
  std::vector<std::string> texts;
  for (const SyntaxTree::Node& node : tree.nodes) {
    if (node.rule == parent) {
      tree.forEachChild(
          node, [&](const SyntaxTree::Node& child) { texts.emplace_back(tree.textOf(child)); });
      break;
    }
  }
  return texts;
}

TEST(SyntaxTree, GivesTheNodesDirectlyInsideAnotherOneInOrder) {
  CompiledText text("n.a.b:C:D + m");
  ASSERT_EQ(text.parseExpression(), vorn::Verdict::Accepted);
  EXPECT_EQ(children(text.tree(), TreeRule::oC_Expression),
            (std::vector<std::string>{"n.a.b:C:D", "m"}));
  EXPECT_EQ(children(text.tree(), TreeRule::oC_PropertyOrLabelsExpression),
            (std::vector<std::string>{"n", "a", "b", "C", "D"}));
  EXPECT_EQ(children(text.tree(), TreeRule::oC_Variable), std::vector<std::string>{});
}

TEST(SyntaxTree, GivesTheFirstChildOfARuleOrNone) {
  CompiledText text("n.a.b");
  ASSERT_EQ(text.parseExpression(), vorn::Verdict::Accepted);
  const SyntaxTree& tree = text.tree();
  const SyntaxTree::Node* const access =
      tree.child(tree.nodes.front(), TreeRule::oC_PropertyOrLabelsExpression);
  ASSERT_NE(access, nullptr);
  const SyntaxTree::Node* const key = tree.child(*access, TreeRule::oC_PropertyKeyName);
  ASSERT_NE(key, nullptr);
  EXPECT_EQ(tree.textOf(*key), "a");
  EXPECT_EQ(tree.child(*access, TreeRule::oC_LabelName), nullptr);
  // The variable stands inside the atom, one level below.
  EXPECT_EQ(tree.child(*access, TreeRule::oC_Variable), nullptr);
}

}  // namespace
