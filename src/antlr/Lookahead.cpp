#include "antlr/Lookahead.h"

namespace vorn {

// Stands in for what is generated from the grammar.
std::size_t lookaheadAlternative(std::size_t /*decision*/, antlr4::TokenStream& /*tokens*/) {
  return 0;
}

}  // namespace vorn
