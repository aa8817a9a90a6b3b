#pragma once

namespace vorn {

/// Builds the tables of the generated lexer and parser, and sees to it that they go with the
/// library when a host unloads it. Only the first call does anything, and one after a call that
/// failed.
void buildRecogniserTables();

}  // namespace vorn
