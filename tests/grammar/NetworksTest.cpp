#include <gtest/gtest.h>

#include "support/Pipeline.h"

namespace {

// Reads the serialized form up to the number of sets: version, grammar type, greatest token type,
// then the lists that stand before the sets.
class SerializedNetwork {
 public:
  explicit SerializedNetwork(antlr4::atn::SerializedATNView values)
      : rest(values), version(next()), isLexer(next() == 0) {
    next();
    for (int states = next(); states > 0; --states) {
      skipState();
    }
    skip(next());
    skip(next());
    skip(next() * (isLexer ? 2 : 1));
    skip(next());
    sets = next();
  }

  int getVersion() const { return version; }
  int getSets() const { return sets; }

 private:
  int next() { return rest[at++]; }

  void skip(int count) { at += static_cast<std::size_t>(count); }

  // Invalid states have a type only; loop ends and starts of blocks name another state.
  void skipState() {
    const int type = next();
    if (type != 0) {
      skip(type == 12 || (type >= 3 && type <= 5) ? 2 : 1);
    }
  }

  antlr4::atn::SerializedATNView rest;
  std::size_t at = 0;
  int version;
  bool isLexer;
  int sets = 0;
};

TEST(LexerNetwork, HasTheSizeOfTheGrammar) {
  const Pipeline pipeline("");
  const antlr4::atn::ATN& atn = pipeline.lexer.getATN();
  EXPECT_EQ(atn.states.size(), 1027U);
  EXPECT_EQ(atn.ruleToStartState.size(), 149U);
  EXPECT_EQ(atn.modeToStartState.size(), 1U);
  EXPECT_EQ(atn.decisionToState.size(), 38U);
  EXPECT_EQ(atn.maxTokenType, 129U);
  EXPECT_TRUE(atn.lexerActions.empty());
  const SerializedNetwork serialized(pipeline.lexer.getSerializedATN());
  EXPECT_EQ(serialized.getVersion(), 4);
  EXPECT_EQ(serialized.getSets(), 47);
  EXPECT_EQ(pipeline.lexer.getSerializedATN().size(), 11961U);
}

TEST(ParserNetwork, HasTheSizeOfTheGrammar) {
  const Pipeline pipeline("");
  const antlr4::atn::ATN& atn = pipeline.parser.getATN();
  EXPECT_EQ(atn.states.size(), 1615U);
  EXPECT_EQ(atn.ruleToStartState.size(), 104U);
  EXPECT_EQ(atn.decisionToState.size(), 300U);
  EXPECT_EQ(atn.maxTokenType, 129U);
  EXPECT_EQ(SerializedNetwork(pipeline.parser.getSerializedATN()).getSets(), 10);
}

// The parse depends on the text alone, not on code in the rules or on precedences.
TEST(ParserNetwork, HasNoPredicatesActionsOrLeftRecursion) {
  const Pipeline pipeline("");
  for (const antlr4::atn::ATNState* state : pipeline.parser.getATN().states) {
    for (const auto& transition : state->transitions) {
      EXPECT_NE(transition->getTransitionType(), antlr4::atn::TransitionType::PREDICATE);
      EXPECT_NE(transition->getTransitionType(), antlr4::atn::TransitionType::PRECEDENCE);
      EXPECT_NE(transition->getTransitionType(), antlr4::atn::TransitionType::ACTION);
    }
  }
  for (const antlr4::atn::RuleStartState* start : pipeline.parser.getATN().ruleToStartState) {
    EXPECT_FALSE(start->isLeftRecursiveRule);
  }
}

TEST(Networks, HaveNoNonGreedyDecisions) {
  const Pipeline pipeline("");
  for (const antlr4::atn::ATN* atn : {&pipeline.lexer.getATN(), &pipeline.parser.getATN()}) {
    for (const antlr4::atn::DecisionState* decision : atn->decisionToState) {
      EXPECT_FALSE(decision->nonGreedy);
    }
  }
}

TEST(Networks, AreBuiltOnceAndShared) {
  const Pipeline one("");
  const Pipeline other("RETURN 1");
  EXPECT_EQ(&one.lexer.getATN(), &other.lexer.getATN());
  EXPECT_EQ(&one.parser.getATN(), &other.parser.getATN());
  EXPECT_EQ(&one.lexer.getVocabulary(), &other.lexer.getVocabulary());
  EXPECT_EQ(&one.parser.getRuleNames(), &other.parser.getRuleNames());
}

}  // namespace
