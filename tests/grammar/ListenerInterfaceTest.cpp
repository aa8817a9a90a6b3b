#include <gtest/gtest.h>
#include <tree/ParseTreeWalker.h>

#include <fstream>
#include <iterator>
#include <regex>
#include <type_traits>

#include "CypherBaseListener.h"
#include "support/Pipeline.h"

namespace {

using Names = std::vector<std::string>;

// Reads the header, since only the declarations show the order of the virtual operations.
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

// The operations differ in their names, which only a macro can put together.
// NOLINTBEGIN(cppcoreguidelines-macro-usage)

// The type of a pointer to a member function names the class that declares the function. So these
// lines compile only if the listener declares the operations of all rules, and the base listener
// declares all operations again.
#define RULE(Name)                                                                              \
  static_assert(                                                                                \
      std::is_same_v<decltype(&vorn::CypherListener::enterOC_##Name),                           \
                     void (vorn::CypherListener::*)(vorn::CypherParser::OC_##Name##Context*)>); \
  static_assert(                                                                                \
      std::is_same_v<decltype(&vorn::CypherListener::exitOC_##Name),                            \
                     void (vorn::CypherListener::*)(vorn::CypherParser::OC_##Name##Context*)>); \
  static_assert(std::is_same_v<decltype(&vorn::CypherBaseListener::enterOC_##Name),             \
                               void (vorn::CypherBaseListener::*)(                              \
                                   vorn::CypherParser::OC_##Name##Context*)>);                  \
  static_assert(std::is_same_v<decltype(&vorn::CypherBaseListener::exitOC_##Name),              \
                               void (vorn::CypherBaseListener::*)(                              \
                                   vorn::CypherParser::OC_##Name##Context*)>);
#include "Rules.inc"
#undef RULE
static_assert(std::is_same_v<decltype(&vorn::CypherBaseListener::visitTerminal),
                             void (vorn::CypherBaseListener::*)(antlr4::tree::TerminalNode*)>);
static_assert(std::is_same_v<decltype(&vorn::CypherBaseListener::visitErrorNode),
                             void (vorn::CypherBaseListener::*)(antlr4::tree::ErrorNode*)>);
static_assert(std::is_same_v<decltype(&vorn::CypherBaseListener::enterEveryRule),
                             void (vorn::CypherBaseListener::*)(antlr4::ParserRuleContext*)>);
static_assert(std::is_same_v<decltype(&vorn::CypherBaseListener::exitEveryRule),
                             void (vorn::CypherBaseListener::*)(antlr4::ParserRuleContext*)>);

// Notes the operations of the rules as they are called.
class RuleRecorder : public vorn::CypherBaseListener {
 public:
#define RULE(Name)                                                                \
  void enterOC_##Name(vorn::CypherParser::OC_##Name##Context* /*ctx*/) override { \
    events.emplace_back("enterOC_" #Name);                                        \
  }                                                                               \
  void exitOC_##Name(vorn::CypherParser::OC_##Name##Context* /*ctx*/) override {  \
    events.emplace_back("exitOC_" #Name);                                         \
  }
#include "Rules.inc"
#undef RULE

  Names events;
};

template <typename Context>
void enterAndExit(antlr4::tree::ParseTreeListener& listener, std::size_t ruleIndex) {
  Context context(nullptr, 0);
  EXPECT_EQ(context.getRuleIndex(), ruleIndex);
  context.enterRule(&listener);
  context.exitRule(&listener);
}

TEST(ListenerInterface, IsCalledByTheContextOfEachRuleForThisRuleOnly) {
  RuleRecorder recorder;
  std::size_t ruleIndex = 0;
#define RULE(Name) enterAndExit<vorn::CypherParser::OC_##Name##Context>(recorder, ruleIndex++);
#include "Rules.inc"
#undef RULE
  const Pipeline pipeline("");
  Names expected;
  for (std::string rule : pipeline.parser.getRuleNames()) {
    rule.front() = 'O';
    expected.push_back("enter" + rule);
    expected.push_back("exit" + rule);
  }
  EXPECT_EQ(ruleIndex, 104U);
  EXPECT_EQ(recorder.events, expected);
}

// NOLINTEND(cppcoreguidelines-macro-usage)

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
