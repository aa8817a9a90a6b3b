#include "platform/Unloading.h"

#if defined(_WIN32)
#include <windows.h>
#endif

#include <atomic>

namespace vorn {

namespace {

// NOLINTBEGIN(cppcoreguidelines-avoid-non-const-global-variables): the process has one end.
std::atomic<void (*)()> unloadAction{nullptr};  // null before it is given and after it has run
std::atomic<bool> processEnds{false};
// NOLINTEND(cppcoreguidelines-avoid-non-const-global-variables)

void unload() {
  if (void (*const action)() = unloadAction.exchange(nullptr); action != nullptr && !processEnds) {
    action();
  }
}

#if defined(_WIN32)

// Windows destroys static objects both when the library is unloaded and when the process ends. This
// function tells which, but the import libraries leave it out.
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

// When the process ends, static objects are destroyed before the functions marked as destructors
// run. When the library is unloaded, they are destroyed afterwards.
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
