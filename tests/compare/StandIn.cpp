#include "Reference.h"
#include "Subject.h"

namespace compare {

// The bare pipeline itself, until there is another parser to compare with it.
Parse parseCompiled(std::string_view utf8, Entry entry) { return Reference(utf8, entry).parse(); }

}  // namespace compare
