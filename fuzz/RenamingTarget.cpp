#include <utility>

#include "Input.h"
#include "Properties.h"

namespace {

// Takes away and returns the bytes before the separator, and drops the separator. No UTF-8 has that
// byte.
std::string_view takePart(std::string_view& bytes) {
  const std::size_t end = bytes.find('\xFF');
  const std::string_view part = bytes.substr(0, end);
  bytes.remove_prefix(end == std::string_view::npos ? bytes.size() : end + 1);
  return part;
}

}  // namespace

// The input is a property filter followed by old and new names in turn.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string_view bytes = bytesOf(data, size);
  const vorn::WideString expression = wideFrom(takePart(bytes));
  Renames renames;
  while (!bytes.empty()) {
    vorn::WideString oldName = wideFrom(takePart(bytes));
    renames.insert_or_assign(std::move(oldName), wideFrom(takePart(bytes)));
  }
  checkRenaming(expression, renames);
  return 0;
}
