#include "antlr/RecogniserTables.h"

#include <atn/PredictionContext.h>
#include <atn/SemanticContext.h>

#include <memory>

#include "antlr/NeverDestroyed.h"
#include "platform/Unloading.h"

namespace vorn {

// Defined in the generated sources, which hold the static data.
void buildLexerTables();
void buildParserTables();
void releaseLexerTables();
void releaseParserTables();

namespace {

// The runtime destroys its static objects at the end of the process, while calls may still need
// them. So a second owner keeps these two.
struct KeptAlive {
  std::shared_ptr<const antlr4::atn::PredictionContext> context =
      antlr4::atn::PredictionContext::EMPTY;
  std::shared_ptr<const antlr4::atn::SemanticContext> condition =
      antlr4::atn::SemanticContext::NONE;
};

// Initialises a static variable by `action`. If `action` throws, the next call runs it again.
template <typename Action>
bool done(Action action) {
  action();
  return true;
}

}  // namespace

void buildRecogniserTables() {
  static const bool released = done([] {
    runWhenUnloaded([] {
      releaseParserTables();
      releaseLexerTables();
      neverDestroyed<KeptAlive>() = {nullptr, nullptr};
    });
  });
  neverDestroyed<KeptAlive>();
  static const bool lexerBuilt = done(buildLexerTables);
  static const bool parserBuilt = done(buildParserTables);
  static_cast<void>(released && lexerBuilt && parserBuilt);
}

}  // namespace vorn
