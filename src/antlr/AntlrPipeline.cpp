#include "antlr/AntlrPipeline.h"

#include <ANTLRInputStream.h>
#include <CommonTokenFactory.h>
#include <CommonTokenStream.h>

#include <cstddef>
#include <vector>

#include "CypherLexer.h"
#include "antlr/CallPredictor.h"
#include "antlr/NeverDestroyed.h"
#include "antlr/RecogniserTables.h"
#include "antlr/TableLexerSimulator.h"

namespace vorn {

namespace {

using antlr4::tree::ParseTreeTracker;
using Nodes = std::vector<antlr4::tree::ParseTree*>;

// The tracker owns the nodes in a private vector and offers no way to reserve memory for it. An
// explicit instantiation may name the private member.
Nodes& nodesOf(ParseTreeTracker& tracker);
template <Nodes ParseTreeTracker::*member>
struct NodesOf {
  friend Nodes& nodesOf(ParseTreeTracker& tracker) { return tracker.*member; }
};
template struct NodesOf<&ParseTreeTracker::_allocated>;

// The tracker leaks a new node if its vector cannot grow. So the vector grows before: it always has
// room for the next terminal node and the next rule.
class LeakFreeParser final : public CypherParser {
 public:
  explicit LeakFreeParser(antlr4::TokenStream* input) : CypherParser(input) { makeRoom(); }

  void enterRule(antlr4::ParserRuleContext* context, std::size_t state, std::size_t rule) override {
    makeRoom();
    CypherParser::enterRule(context, state, rule);
  }

  antlr4::Token* consume() override {
    makeRoom();
    return CypherParser::consume();
  }

 private:
  void makeRoom() {
    Nodes& nodes = nodesOf(getTreeTracker());
    if (nodes.capacity() - nodes.size() < 2) {
      nodes.reserve(2 * nodes.size() + 2);
    }
  }
};

// Replaces the listener that the runtime installs, which prints to the console.
void tellOfErrors(antlr4::Recognizer& recognizer, antlr4::ANTLRErrorListener& listener) {
  recognizer.removeErrorListeners();
  recognizer.addErrorListener(&listener);
}

}  // namespace

AntlrPipeline::AntlrPipeline(std::string_view utf8, antlr4::ANTLRErrorListener& errors,
                             std::size_t bound)
    : input_(std::make_unique<antlr4::ANTLRInputStream>(utf8)) {
  buildRecogniserTables();
  lexer_ = std::make_unique<CypherLexer>(input_.get());
  tellOfErrors(*lexer_, errors);
  // The runtime destroys its own factory at the end of the process, while calls may still need it.
  lexer_->setTokenFactory(&neverDestroyed<antlr4::CommonTokenFactory>());
  lexer_->setInterpreter(new TableLexerSimulator(*lexer_));
  tokens_ = std::make_unique<antlr4::CommonTokenStream>(lexer_.get());
  parser_ = std::make_unique<LeakFreeParser>(tokens_.get());
  tellOfErrors(*parser_, errors);
  parser_->setInterpreter(new CallPredictor(*parser_, bound));
}

AntlrPipeline::~AntlrPipeline() = default;

}  // namespace vorn
