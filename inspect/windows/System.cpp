#include "System.h"

#include <fcntl.h>
#include <io.h>
#include <utf8.h>
#include <windows.h>
// Needs windows.h before it.
#include <shellapi.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <iostream>
#include <iterator>
#include <memory>
#include <sstream>
#include <string>
#include <string_view>

#include "InputOutput.h"

namespace inspect {

namespace {

bool isConsole(DWORD stream) {
  DWORD mode = 0;
  return GetConsoleMode(GetStdHandle(stream), &mode) != 0;
}

// Text that is not well formed comes out with U+FFFD in the bad places.
std::wstring toWide(const std::string& utf8) {
  const auto size = static_cast<int>(utf8.size());
  std::wstring wide(utf8.size(), L'\0');
  wide.resize(static_cast<std::size_t>(
      MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, wide.data(), size)));
  return wide;
}

std::string toNarrow(const std::wstring& wide) {
  constexpr std::size_t longest = 3;  // bytes for a code unit
  std::string utf8(wide.size() * longest, '\0');
  utf8.resize(static_cast<std::size_t>(
      WideCharToMultiByte(CP_UTF8, 0, wide.data(), static_cast<int>(wide.size()), utf8.data(),
                          static_cast<int>(utf8.size()), nullptr, nullptr)));
  return utf8;
}

// Hands text to the console when the stream is flushed. The program flushes after each text, so no
// character is cut in two.
class ConsoleOutput : public std::stringbuf {
 public:
  explicit ConsoleOutput(DWORD stream) : console(GetStdHandle(stream)) {}

 protected:
  int sync() override {
    const std::wstring text = toWide(str());
    str("");
    DWORD written = 0;
    for (std::size_t done = 0; done < text.size(); done += written) {
      // The console takes about 32,000 characters at once.
      constexpr std::size_t most = 8192;
      const auto part = static_cast<DWORD>(std::min(most, text.size() - done));
      if (WriteConsoleW(console, &text[done], part, &written, nullptr) == 0 || written == 0) {
        return -1;
      }
    }
    return 0;
  }

 private:
  HANDLE console;
};

// Reads one line at a time. A line that begins with Ctrl+Z is the end.
class ConsoleInput : public std::streambuf {
 protected:
  int_type underflow() override {
    line = toNarrow(readLine());
    if (line.empty()) {
      return traits_type::eof();
    }
    setg(line.data(), line.data(), line.data() + line.size());
    return traits_type::to_int_type(line.front());
  }

 private:
  static std::wstring readLine() {
    constexpr wchar_t controlZ = L'\x1A';
    std::wstring text;
    std::array<wchar_t, 1024> part{};
    DWORD read = 0;
    do {
      if (ReadConsoleW(GetStdHandle(STD_INPUT_HANDLE), part.data(), part.size(), &read, nullptr) ==
          0) {
        break;
      }
      text.append(part.data(), read);
    } while (read > 0 && text.back() != L'\n');
    if (!text.empty() && text.front() == controlZ) {
      return {};
    }
    constexpr std::size_t lineEnd = 2;
    if (text.size() >= lineEnd && text[text.size() - lineEnd] == L'\r') {
      text.erase(text.size() - lineEnd, 1);
    }
    return text;
  }

  std::string line;
};

// Puts a buffer into a standard stream while the object lives, if the stream goes to a console.
template <typename Buffer>
class Redirection {
 public:
  template <typename... Arguments>
  Redirection(DWORD handle, std::ios& redirected, Arguments... arguments)
      : buffer(arguments...),
        stream(redirected),
        before(isConsole(handle) ? redirected.rdbuf(&buffer) : redirected.rdbuf()) {}
  Redirection(const Redirection&) = delete;
  Redirection(Redirection&&) = delete;
  Redirection& operator=(const Redirection&) = delete;
  Redirection& operator=(Redirection&&) = delete;
  ~Redirection() {
    buffer.pubsync();
    stream.rdbuf(before);
  }

 private:
  Buffer buffer;
  std::ios& stream;
  std::streambuf* before;
};

}  // namespace

// What main is given has gone through the system's code page, which has not all characters.
std::vector<std::string> argumentsInUtf8(int /*argc*/, const char* const* /*argv*/) {
  int count = 0;
  const std::unique_ptr<LPWSTR, decltype(&LocalFree)> list(
      CommandLineToArgvW(GetCommandLineW(), &count), LocalFree);
  std::vector<std::string> arguments;
  for (int i = 0; list != nullptr && i < count; ++i) {
    const std::wstring_view wide = list.get()[i];
    try {
      utf8::utf16to8(wide.begin(), wide.end(), std::back_inserter(arguments.emplace_back()));
    } catch (const utf8::exception&) {
      throw UsageError("argument " + std::to_string(i) +
                       " holds half a character of UTF-16; give all of it.");
    }
  }
  return arguments;
}

class StandardStreams::Consoles {
  Redirection<ConsoleInput> in{STD_INPUT_HANDLE, std::cin};
  Redirection<ConsoleOutput> out{STD_OUTPUT_HANDLE, std::cout, STD_OUTPUT_HANDLE};
  Redirection<ConsoleOutput> errors{STD_ERROR_HANDLE, std::cerr, STD_ERROR_HANDLE};
};

StandardStreams::StandardStreams() {
  // Without it the standard library's own buffers would hide that a read failed.
  std::ios::sync_with_stdio(false);
  // Otherwise line ends change on the way, and Ctrl+Z ends a file.
  for (std::FILE* file : {stdin, stdout, stderr}) {
    _setmode(_fileno(file), _O_BINARY);
  }
  consoles = std::make_unique<Consoles>();
}

StandardStreams::~StandardStreams() = default;

bool outputIsWatched() { return isConsole(STD_OUTPUT_HANDLE); }

bool errorsAreWatched() { return isConsole(STD_ERROR_HANDLE); }

}  // namespace inspect
