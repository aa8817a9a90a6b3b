#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>

#include "Analysis.h"

namespace inspect {

/// One sentence that says what to write instead, if an irregularity of the language or a typical
/// slip is why the text is refused.
///
/// `offset` is the place of the error, `ask` the question that refused the text. Each change is
/// tried: there is a hint only if the changed text is accepted, or its error stands further behind.
std::optional<std::string> hintFor(const std::string& text, std::size_t offset,
                                   const std::function<Analysis(const std::string&)>& ask);

/// Advice for a text that is the name of an existing file.
std::optional<std::string> hintForFile(const std::string& text);

/// Advice for a text that has the shape of a file's name, whether or not there is such a file.
std::optional<std::string> hintForPath(const std::string& text);

}  // namespace inspect
