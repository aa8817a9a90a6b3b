#include <gtest/gtest.h>
#include <tree/ParseTreeWalker.h>

#include <fstream>
#include <iterator>
#include <regex>

#include "CypherBaseListener.h"
#include "support/Pipeline.h"

namespace {

using Names = std::vector<std::string>;

// The order of the virtual operations can only be seen where they are declared.
Names declaredOperations() {
  std::ifstream file(VORN_LISTENER_HEADER);
  const std::string header((std::istreambuf_iterator<char>(file)),
                           std::istreambuf_iterator<char>());
  const std::regex operation(R"(virtual void (\w+)\(CypherParser::(\w+)Context \*ctx\) = 0;)");
  Names names;
  for (std::sregex_iterator match(header.begin(), header.end(), operation), end; match != end;
       ++match) {
    names.push_back((*match)[1].str() + "(" + (*match)[2].str() + ")");
  }
  return names;
}

TEST(ListenerInterface, HasAnEnterAndAnExitForEachRuleInRuleOrder) {
  const Pipeline pipeline("");
  Names expected;
  for (std::string rule : pipeline.parser.getRuleNames()) {
    rule.front() = 'O';
    expected.push_back("enter" + rule + "(" + rule + ")");
    expected.push_back("exit" + rule + "(" + rule + ")");
  }
  ASSERT_EQ(expected.size(), 208U);
  EXPECT_EQ(declaredOperations(), expected);
}

// Together with the 208 above: destructor, visitTerminal, visitErrorNode, enterEveryRule,
// exitEveryRule.
TEST(ListenerInterface, OfTheBaseListenerIsWhollyEmpty) {
  static_assert(!std::is_abstract_v<vorn::CypherBaseListener>);
  static_assert(std::is_base_of_v<antlr4::tree::ParseTreeListener, vorn::CypherListener>);
  static_assert(std::has_virtual_destructor_v<vorn::CypherListener>);
  Pipeline pipeline("MATCH (n) RETURN n");
  vorn::CypherBaseListener listener;
  EXPECT_NO_THROW(
      antlr4::tree::ParseTreeWalker::DEFAULT.walk(&listener, pipeline.parser.oC_Cypher()));
}

TEST(ListenerInterface, IsCalledBeforeAndAfterTheChildrenInTextOrder) {
  struct Recorder : vorn::CypherBaseListener {
    void enterOC_Match(vorn::CypherParser::OC_MatchContext* /*ctx*/) override {
      events.emplace_back("enter match");
    }
    void exitOC_Match(vorn::CypherParser::OC_MatchContext* /*ctx*/) override {
      events.emplace_back("exit match");
    }
    void enterOC_Variable(vorn::CypherParser::OC_VariableContext* ctx) override {
      events.push_back("enter " + ctx->getText());
    }
    void enterOC_Return(vorn::CypherParser::OC_ReturnContext* /*ctx*/) override {
      events.emplace_back("enter return");
    }
    Names events;
  };
  Pipeline pipeline("MATCH (a)--(b) RETURN c");
  Recorder recorder;
  antlr4::tree::ParseTreeWalker::DEFAULT.walk(&recorder, pipeline.parser.oC_Cypher());
  EXPECT_EQ(recorder.events,
            (Names{"enter match", "enter a", "enter b", "exit match", "enter return", "enter c"}));
}

}  // namespace
