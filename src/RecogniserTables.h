#pragma once

namespace vorn {

/// Sees to it that the tables of the generated lexer and parser, which never free them, go with the
/// library when a host unloads it. Only the first call does anything.
void releaseRecogniserTablesWithLibrary();

}  // namespace vorn
