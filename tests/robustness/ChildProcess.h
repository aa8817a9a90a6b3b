#pragma once

#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <exception>
#include <string>

/// Runs the function in a process of its own and returns its text. So the function may do what a
/// process can do only once. If an exception or a signal ends it, the text has a line about that.
/// The process ends without destructors and exit handlers.
template <typename Function>
std::string inChildProcess(const Function& function) {
  std::array<int, 2> ends{};
  if (::pipe(ends.data()) != 0) {
    return "no pipe";
  }
  const pid_t child = ::fork();
  if (child < 0) {
    return "no process";
  }
  if (child == 0) {
    std::string text;
    try {
      text = function();
    } catch (const std::exception& exception) {
      text = std::string("exception: ") + exception.what();
    }
    const ssize_t written = ::write(ends[1], text.data(), text.size());
    ::_exit(written == static_cast<ssize_t>(text.size()) ? 0 : 1);
  }
  ::close(ends[1]);
  std::string text;
  for (char byte = 0; ::read(ends[0], &byte, 1) == 1;) {
    text += byte;
  }
  ::close(ends[0]);
  int status = 0;
  ::waitpid(child, &status, 0);
  if (WIFSIGNALED(status)) {
    text += "signal " + std::to_string(WTERMSIG(status));
  } else if (WEXITSTATUS(status) != 0) {
    text += "exit code " + std::to_string(WEXITSTATUS(status));
  }
  return text;
}
