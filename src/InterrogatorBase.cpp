#include "InterrogatorBase.h"

#include "parser/CompiledLexer.h"
#include "strings/StringUtf8ImplDetail.h"

namespace vorn {

// NOLINTBEGIN(cppcoreguidelines-pro-type-member-init): firstMemory is raw memory.

InterrogatorBase::InterrogatorBase(const WideString& text)
    : utf8Text(StringUtf8ImplDetail::StringWideCharToUtf8Impl(text)), tree(utf8Text, &treeMemory) {
  tokenise(tree);
}

InterrogatorBase::InterrogatorBase(std::string_view utf8) : tree(utf8, &treeMemory) {
  tokenise(tree);
}

// NOLINTEND(cppcoreguidelines-pro-type-member-init)

InterrogatorBase::~InterrogatorBase() = default;

}  // namespace vorn
