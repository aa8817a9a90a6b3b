#include "Answer.h"

#include <array>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <mutex>
#include <string_view>
#include <utility>

#include "antlr/NeverDestroyed.h"

namespace vorn {

namespace {

constexpr std::string_view message = "memory ran out";

// The message with a zero behind it.
template <typename Unit>
constexpr auto messageUnits() {
  std::array<Unit, message.size() + 1> units{};
  for (std::size_t i = 0; i != message.size(); ++i) {
    units.at(i) = static_cast<Unit>(static_cast<unsigned char>(message[i]));
  }
  return units;
}

template <typename Unit>
constexpr auto memoryRanOut = messageUnits<Unit>();

template <typename Unit>
struct OutOfMemory : vorn_answer {
  OutOfMemory() {
    error.kind = VORN_OUT_OF_MEMORY;
    error.message = Units<Unit>{memoryRanOut<Unit>.data(), message.size()};
    error.element = nothing<Unit>;
  }
};

#if defined(NDEBUG)

void dispose(vorn_answer* answer) { delete answer; }

#else

// The last released answers keep their memory. So a second release of one of them does not meet
// another answer in its place.
// NOLINTBEGIN(cppcoreguidelines-avoid-non-const-global-variables): in debug builds only
std::mutex disposing;
std::array<vorn_answer*, 1024> disposed{};
std::size_t disposals = 0;
// NOLINTEND(cppcoreguidelines-avoid-non-const-global-variables)

void dispose(vorn_answer* answer) {
  const std::lock_guard<std::mutex> lock(disposing);
  if (answer->isReleased) {
    std::fputs("vorn_release: the answer has been released before\n", stderr);
    std::abort();
  }
  answer->isReleased = true;
  answer->columns = {};
  answer->variables = {};
  answer->memory.release();
  delete std::exchange(disposed.at(disposals++ % disposed.size()), answer);
}

#endif

}  // namespace

template <typename Unit>
vorn_answer& outOfMemory() {
  return neverDestroyed<OutOfMemory<Unit>>();
}

template vorn_answer& outOfMemory<char>();
template vorn_answer& outOfMemory<std::uint16_t>();

}  // namespace vorn

// An answer that says that memory ran out is static, and not released.
void vorn_release(vorn_answer* answer) {
  if (answer != nullptr && answer->error.kind != VORN_OUT_OF_MEMORY) {
    vorn::dispose(answer);
  }
}

const char* vorn_version() { return VORN_VERSION_TEXT; }
