#include "platform/Unloading.h"

#if defined(_WIN32)
#include <windows.h>
#endif

#include <atomic>

namespace vorn {

namespace {

// NOLINTBEGIN(cppcoreguidelines-avoid-non-const-global-variables): the process has one end.
std::atomic<void (*)()> unloadAction{nullptr};
std::atomic<bool> processEnds{false};
// NOLINTEND(cppcoreguidelines-avoid-non-const-global-variables)

void unload() {
  if (void (*const action)() = unloadAction.exchange(nullptr); action != nullptr && !processEnds) {
    action();
  }
}

#if defined(_WIN32)

// Windows runs destructors of static objects in both cases and tells them apart by this function,
// which its import libraries leave out.
bool isProcessEnding() {
  using Query = BOOLEAN(NTAPI*)();
  HMODULE const library = GetModuleHandleW(L"ntdll.dll");
  if (library == nullptr) {
    return true;
  }
  const auto query = reinterpret_cast<Query>(
      reinterpret_cast<void (*)()>(GetProcAddress(library, "RtlDllShutdownInProgress")));
  return query == nullptr || query() != FALSE;
}

void staticObjectsGo() {
  processEnds = isProcessEnding();
  unload();
}

#else

// At the end of the process destructors of static objects run before the functions that are marked
// as destructors, and after them when the library is unloaded.
void staticObjectsGo() { processEnds = true; }

[[gnu::destructor]] void unloadFromProcessThatGoesOn() { unload(); }

#endif

struct End {
  End() = default;
  End(const End&) = delete;
  End& operator=(const End&) = delete;
  End(End&&) = delete;
  End& operator=(End&&) = delete;
  ~End() { staticObjectsGo(); }
};

}  // namespace

void runWhenUnloaded(void (*action)()) {
  static const End end;
  unloadAction = action;
}

}  // namespace vorn
