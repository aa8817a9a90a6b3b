#pragma once

namespace vorn {

class DfaIndex;

/// Builds the tables of the generated lexer and parser, and sees to it that they go with the
/// library when a host unloads it. Only the first call does anything, and one after a call that
/// failed.
void buildRecogniserTables();

/// The index of the automata that all lexers share. The tables must have been built.
DfaIndex& lexerIndex();

}  // namespace vorn
