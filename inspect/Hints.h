#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>

#include "Analysis.h"

namespace inspect {

/// What to write instead, in one sentence, where a text of a command is refused because of an
/// irregularity of the language or of a typical slip.
///
/// `offset` is the place of the error. Nothing is said on suspicion: `ask` is the question which
/// refused the text, and a hint is given only if with it followed the text would be accepted or
/// the next error stand further behind.
std::optional<std::string> hintFor(const std::string& text, std::size_t offset,
                                   const std::function<Analysis(const std::string&)>& ask);

/// Advice for a text that is the name of a file.
std::optional<std::string> hintForFile(const std::string& text);

/// Advice for a text that has the shape of a file's name, whether or not there is such a file.
std::optional<std::string> hintForPath(const std::string& text);

}  // namespace inspect
