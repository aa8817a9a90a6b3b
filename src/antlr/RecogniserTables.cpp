#include "antlr/RecogniserTables.h"

#include "platform/Unloading.h"

namespace vorn {

// In the generated sources, which know the tables.
void buildLexerTables();
void buildParserTables();
void releaseLexerTables();
void releaseParserTables();

namespace {

// For what is done once: an exception that leaves `action` leaves it undone.
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
    });
  });
  static const bool lexerBuilt = done(buildLexerTables);
  static const bool parserBuilt = done(buildParserTables);
  static_cast<void>(released && lexerBuilt && parserBuilt);
}

}  // namespace vorn
