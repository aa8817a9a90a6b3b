#include "Input.h"
#include "Properties.h"

// The input is a property filter.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  checkUsages(wideFrom(bytesOf(data, size)));
  return 0;
}
