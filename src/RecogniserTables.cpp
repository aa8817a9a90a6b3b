#include "RecogniserTables.h"

#include "platform/Unloading.h"

namespace vorn {

// In the generated sources, which know the tables.
void releaseLexerTables();
void releaseParserTables();

void releaseRecogniserTablesWithLibrary() {
  static const bool done = [] {
    runWhenUnloaded([] {
      releaseParserTables();
      releaseLexerTables();
    });
    return true;
  }();
  static_cast<void>(done);
}

}  // namespace vorn
