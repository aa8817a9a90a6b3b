#include "StandardOutput.h"

#include <iostream>

#include "UsageError.h"

namespace inspect {

void writeOut(std::string_view text) {
  if (!(std::cout << text << std::flush)) {
    throw UsageError("standard output cannot be written; direct it to where there is room.");
  }
}

}  // namespace inspect
