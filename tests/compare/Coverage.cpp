#include "Coverage.h"

#include <ParserInterpreter.h>
#include <atn/DecisionState.h>
#include <atn/ParserATNSimulator.h>

#include <algorithm>
#include <map>
#include <utility>

#include "BarePipeline.h"

namespace compare {

namespace {

using antlr4::atn::ATN;
using antlr4::atn::ATNStateType;

constexpr std::size_t leave = 2;  // the alternative of a loop that ends it

// How many rounds each loop has made in a context; the key has the number of the loop.
using Rounds = std::map<std::pair<const antlr4::ParserRuleContext*, std::size_t>, std::size_t>;

}  // namespace

class Coverage::Recorder {
 public:
  Recorder() : anyPipeline(""), atn(anyPipeline.parser.getATN()) {
    for (std::size_t i = 0; i < atn.getNumberOfDecisions(); ++i) {
      first.push_back(counts.size());
      counts.resize(counts.size() + slotsOf(i));
    }
  }

  void record(std::size_t decision, std::size_t alternative,
              const antlr4::ParserRuleContext* context) {
    if (!isStar(decision) && !isPlus(decision)) {
      ++counts[first[decision] + alternative - 1];
      return;
    }
    std::size_t& made = rounds[{context, decision}];
    if (alternative != leave) {
      ++made;
      return;
    }
    ++counts[first[decision] + std::min(made, slotsOf(decision) - 1)];
    made = 0;
  }

  [[nodiscard]] std::string nameOf(std::size_t slot) const {
    const auto behind = std::upper_bound(first.begin(), first.end(), slot);
    const auto decision = static_cast<std::size_t>(behind - first.begin()) - 1;
    const std::size_t rule = atn.getDecisionState(decision)->ruleIndex;
    const char* const kind = isStar(decision)   ? ", loop, rounds "
                             : isPlus(decision) ? ", loop, more rounds "
                                                : ", alternative ";
    const std::size_t number =
        slot - first[decision] + (isStar(decision) || isPlus(decision) ? 0 : 1);
    return anyPipeline.parser.getRuleNames()[rule] + ", decision " + std::to_string(decision) +
           kind + std::to_string(number);
  }

  BarePipeline anyPipeline;
  const ATN& atn;
  Rounds rounds;
  std::vector<std::uint32_t> counts;

 private:
  [[nodiscard]] bool isStar(std::size_t decision) const {
    return atn.getDecisionState(decision)->getStateType() == ATNStateType::STAR_LOOP_ENTRY;
  }

  [[nodiscard]] bool isPlus(std::size_t decision) const {
    return atn.getDecisionState(decision)->getStateType() == ATNStateType::PLUS_LOOP_BACK;
  }

  // A decision with a single way has no slots.
  [[nodiscard]] std::size_t slotsOf(std::size_t decision) const {
    const std::size_t ways = atn.getDecisionState(decision)->transitions.size();
    return ways < 2 ? 0 : isStar(decision) ? 3 : ways;
  }

  std::vector<std::size_t> first;
};

// Tells the recorder of each decision.
class Coverage::Simulator final : public antlr4::atn::ParserATNSimulator {
 public:
  Simulator(antlr4::Parser& itsParser, ReferenceTables& tables, Recorder& itsRecorder)
      : ParserATNSimulator(&itsParser, itsRecorder.atn, tables.decisions, tables.contexts),
        recorder(itsRecorder) {}

  std::size_t adaptivePredict(antlr4::TokenStream* input, std::size_t decision,
                              antlr4::ParserRuleContext* context) override {
    const std::size_t alternative = ParserATNSimulator::adaptivePredict(input, decision, context);
    recorder.record(decision, alternative, context);
    return alternative;
  }

 private:
  Recorder& recorder;
};

Coverage::Coverage() : recorder(std::make_unique<Recorder>()) {}

Coverage::~Coverage() = default;

void Coverage::add(std::string_view accepted, Entry entry) {
  BarePipeline pipeline(accepted);
  antlr4::ParserInterpreter interpreter("Cypher.g4", pipeline.parser.getVocabulary(),
                                        pipeline.parser.getRuleNames(), recorder->atn,
                                        &pipeline.tokens);
  interpreter.removeErrorListeners();
  interpreter.setInterpreter(new Simulator(interpreter, *pipeline.tables, *recorder));
  recorder->rounds.clear();
  interpreter.parse(entry == Entry::Query ? vorn::CypherParser::RuleOC_Cypher
                                          : vorn::CypherParser::RuleOC_Expression);
}

const std::vector<std::uint32_t>& Coverage::counts() const { return recorder->counts; }

std::string Coverage::nameOf(std::size_t alternative) const {
  return recorder->nameOf(alternative);
}

}  // namespace compare
