#include "RecogniserTables.h"

#include <cstddef>
#include <utility>

#include "DfaIndex.h"
#include "PredictionTables.h"
#include "platform/Unloading.h"

namespace vorn {

// In the generated sources, which know the tables.
void buildLexerTables();
void buildParserTables();
void releaseLexerTables();
void releaseParserTables();

namespace {

// A plain pointer has no destructor: at the end of the process other threads may still use it. It
// is set once, in the first call.
// NOLINTNEXTLINE(cppcoreguidelines-avoid-non-const-global-variables)
DfaIndex* indexOfLexers = nullptr;

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
      PredictionTables::release();
      releaseParserTables();
      delete std::exchange(indexOfLexers, nullptr);
      releaseLexerTables();
    });
  });
  static const bool lexerBuilt = done([] {
    buildLexerTables();
    constexpr std::size_t modes = 1;
    indexOfLexers = new DfaIndex(modes);
  });
  static const bool parserBuilt = done(buildParserTables);
  static_cast<void>(released && lexerBuilt && parserBuilt);
}

DfaIndex& lexerIndex() { return *indexOfLexers; }

}  // namespace vorn
