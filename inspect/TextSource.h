#pragma once

#include <string>

namespace inspect {

// Where the text to analyse comes from. All of these throw UsageError.

std::string readFile(const std::string& path);

std::string readStandardInput();

/// `what` names the text in the message.
void requireUtf8(const std::string& text, const std::string& what);

}  // namespace inspect
