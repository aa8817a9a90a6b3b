#pragma once

#include "Subject.h"
#include "robustness/Questions.h"

/// The exported functions of one build of the library. Several can be loaded side by side.
class Library : public Subject {
 public:
  /// Throws a std::runtime_error if the library cannot be loaded.
  explicit Library(const std::string& path);
  void call(Function function, const Text& text) const override;

 private:
  Calls calls_;
};

/// Loads the library and never unloads it, since its code must outlive every call. Throws a
/// std::runtime_error if it cannot be loaded.
Calls loadCalls(const std::string& path);
