#pragma once

namespace vorn {

/// Builds the static data of the generated lexer and parser, and has it released when a host
/// unloads the library. Later calls do nothing, unless the calls before have failed.
void buildRecogniserTables();

}  // namespace vorn
