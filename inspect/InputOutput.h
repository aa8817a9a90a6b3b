#pragma once

#include <fstream>
#include <stdexcept>
#include <string>
#include <string_view>

namespace inspect {

/// A call of the program that leaves nothing to analyse. what() says what to do.
class UsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// Reading and writing files and streams. All of these throw UsageError.

std::ifstream openFile(const std::string& path);

std::string readFile(const std::string& path);

std::string readStandardInput();

/// For a stream that stopped before its end. `name` names it in the message.
[[noreturn]] void failToRead(const std::string& name);

/// `what` names the text in the message.
void requireUtf8(const std::string& text, const std::string& what);

/// Writes at once, since another program may be waiting for it.
void writeOut(std::string_view text);

}  // namespace inspect
