#pragma once

#include <clocale>
#include <cstdlib>
#include <stdexcept>
#include <string>

/// Sets the LC_CTYPE of the process while the object lives. The build makes the locales for the
/// tests, so that none has to be installed.
class ScopedLocale {
 public:
  explicit ScopedLocale(const std::string& name) : before(std::setlocale(LC_CTYPE, nullptr)) {
    ::setenv("LOCPATH", VORN_TEST_LOCALES, 1);
    if (std::setlocale(LC_CTYPE, name.c_str()) == nullptr) {
      throw std::runtime_error("there is no locale " + name);
    }
  }
  ScopedLocale(const ScopedLocale&) = delete;
  ScopedLocale& operator=(const ScopedLocale&) = delete;
  ScopedLocale(ScopedLocale&&) = delete;
  ScopedLocale& operator=(ScopedLocale&&) = delete;
  ~ScopedLocale() { static_cast<void>(std::setlocale(LC_CTYPE, before.c_str())); }

 private:
  std::string before;
};
