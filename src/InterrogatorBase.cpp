#include "InterrogatorBase.h"

#include "parser/CompiledLexer.h"
#include "platform/StringUtf8ImplDetail.h"

namespace vorn {

// NOLINTNEXTLINE(cppcoreguidelines-pro-type-member-init): the first memory is raw.
InterrogatorBase::InterrogatorBase(const WideString& text)
    : utf8Text(StringUtf8ImplDetail::StringWideCharToUtf8Impl(text)), tree(utf8Text, &treeMemory) {
  tokenise(tree);
}

InterrogatorBase::~InterrogatorBase() = default;

}  // namespace vorn
