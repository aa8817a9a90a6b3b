// What an index of automata remembers, and that readers see nothing unfinished while others add.

#include <Token.h>
#include <gtest/gtest.h>

#include <deque>
#include <thread>
#include <vector>

#include "DfaIndex.h"

namespace {

using antlr4::dfa::DFAState;
using vorn::DfaIndex;

DFAState predicting(std::size_t alternative) {
  DFAState state;
  state.isAcceptState = true;
  state.prediction = alternative;
  return state;
}

TEST(DfaIndex, KnowsNothingAtFirst) {
  DfaIndex index(2);
  DFAState start;
  EXPECT_EQ(index.start(0), nullptr);
  EXPECT_EQ(index.start(1), nullptr);
  EXPECT_EQ(index.next(index.setStart(1, start), 'a'), nullptr);
  EXPECT_EQ(index.start(0), nullptr);
  EXPECT_EQ(index.statesWithEdges(), 0U);
}

TEST(DfaIndex, KeepsTheAutomataApart) {
  DfaIndex index(2);
  DFAState first;
  DFAState second;
  index.setStart(0, first);
  index.setStart(1, second);
  ASSERT_NE(index.start(0), nullptr);
  ASSERT_NE(index.start(1), nullptr);
  EXPECT_EQ(&index.start(0)->runtimeState, &first);
  EXPECT_EQ(&index.start(1)->runtimeState, &second);
}

TEST(DfaIndex, FollowsTheEdgeOfEverySymbol) {
  DfaIndex index(1);
  DFAState start;
  DfaIndex::State& from = index.setStart(0, start);
  const std::vector<std::size_t> symbols = {
      0, 1, 'a', 127, 134, 135, U'\xE9', U'\x416', 0x4E2D, 0x10FFFF, antlr4::Token::EOF};
  std::deque<DFAState> targets;
  for (const std::size_t symbol : symbols) {
    index.connect(from, symbol, targets.emplace_back(predicting(symbol)));
  }
  for (std::size_t i = 0; i < symbols.size(); ++i) {
    const DfaIndex::State* const target = index.next(from, symbols[i]);
    ASSERT_NE(target, nullptr) << symbols[i];
    EXPECT_EQ(&target->runtimeState, &targets[i]) << symbols[i];
    EXPECT_TRUE(target->isAcceptState);
    EXPECT_FALSE(target->requiresFullContext);
    EXPECT_EQ(target->prediction, symbols[i]);
  }
  EXPECT_EQ(index.next(from, 'b'), nullptr);
  EXPECT_EQ(index.next(from, U'\xEA'), nullptr);
  EXPECT_EQ(index.statesWithEdges(), 1U);
}

TEST(DfaIndex, HasOneStateForEachOfTheRuntime) {
  DfaIndex index(1);
  DFAState start;
  DFAState loop;
  DfaIndex::State& from = index.setStart(0, start);
  DfaIndex::State& first = index.connect(from, 'a', loop);
  EXPECT_EQ(&index.connect(first, 'a', loop), &first);
  EXPECT_EQ(index.next(first, 'a'), &first);
  EXPECT_EQ(&index.setStart(0, start), &from);
}

// There are fewer places than edges of characters beyond ASCII. An edge that finds none is not
// remembered, and none is taken for another.
TEST(DfaIndex, TakesNoFarCharacterForAnother) {
  DfaIndex index(1);
  DFAState start;
  DfaIndex::State& from = index.setStart(0, start);
  constexpr std::size_t begin = 0x4E00;
  constexpr std::size_t end = 0xA000;
  std::deque<DFAState> targets;
  for (std::size_t symbol = begin; symbol < end; ++symbol) {
    index.connect(from, symbol, targets.emplace_back(predicting(symbol)));
  }
  std::size_t remembered = 0;
  for (std::size_t symbol = begin; symbol < end; ++symbol) {
    const DfaIndex::State* const target = index.next(from, symbol);
    remembered += target != nullptr ? 1 : 0;
    EXPECT_TRUE(target == nullptr || target->prediction == symbol) << symbol;
  }
  EXPECT_GT(remembered, 1'000U);
}

TEST(DfaIndex, TakesNoStateForAnotherAtAFarCharacter) {
  DfaIndex index(1);
  DFAState start;
  DfaIndex::State& first = index.setStart(0, start);
  constexpr std::size_t count = 20'000;
  std::deque<DFAState> states;
  std::vector<DfaIndex::State*> from;
  for (std::size_t i = 0; i < count; ++i) {
    from.push_back(&index.connect(first, 'a', states.emplace_back(predicting(i))));
    index.connect(*from.back(), U'\x416', states.back());
  }
  std::size_t remembered = 0;
  for (DfaIndex::State* const state : from) {
    const DfaIndex::State* const target = index.next(*state, U'\x416');
    remembered += target != nullptr ? 1 : 0;
    EXPECT_TRUE(target == nullptr || target == state);
  }
  EXPECT_GT(remembered, 100U);
}

TEST(DfaIndex, ShowsReadersOnlyWhatIsComplete) {
  DfaIndex index(1);
  constexpr std::size_t length = 2'000;
  std::deque<DFAState> states;
  for (std::size_t i = 0; i <= length; ++i) {
    states.push_back(predicting(i));
  }
  const auto follow = [&] {
    const DfaIndex::State* state = index.start(0);
    std::size_t steps = 0;
    while (state != nullptr && state->prediction == steps) {
      state = index.next(*state, steps % 100);
      ++steps;
    }
    EXPECT_EQ(state, nullptr) << "led astray after " << steps << " steps";
    return steps;
  };
  std::vector<std::thread> readers;
  for (int i = 0; i < 3; ++i) {
    readers.emplace_back([&] {
      while (follow() <= length && !testing::Test::HasFailure()) {
      }
    });
  }
  DfaIndex::State* state = &index.setStart(0, states[0]);
  for (std::size_t i = 0; i < length; ++i) {
    state = &index.connect(*state, i % 100, states[i + 1]);
  }
  for (std::thread& reader : readers) {
    reader.join();
  }
  EXPECT_EQ(follow(), length + 1);
}

}  // namespace
