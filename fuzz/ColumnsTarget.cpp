#include "Input.h"
#include "Properties.h"

// The input is a query.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  checkColumns(wideFrom(bytesOf(data, size)));
  return 0;
}
