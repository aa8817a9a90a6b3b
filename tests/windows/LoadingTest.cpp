// Tests that a host may load and unload the library any number of times.

#include <gtest/gtest.h>
#include <pthread.h>
#include <windows.h>

#include <atomic>
#include <limits>
#include <new>
#include <stdexcept>
#include <thread>
#include <vector>

#include "ReplaceImport.h"

namespace {

using Columns = std::vector<std::pair<vorn::WideString, vorn::CypherType>>;

void callEverything(const LoadedLibrary& library) {
  Columns columns;
  ASSERT_EQ(library.calls().columns(L"MATCH (größe)-[r]->() RETURN größe, r", columns), 0);
  ASSERT_EQ(columns,
            (Columns{{L"größe", vorn::CypherType::Node}, {L"r", vorn::CypherType::Relationship}}));
  ASSERT_EQ(library.calls().columns(L"MATCH (", columns), 1);
  ASSERT_EQ(library.calls().usages(L"n.age > 3 AND m:Adult").size(), 2U);
  ASSERT_EQ(library.calls().renaming(L"n.age > 3", {{L"n", L"m"}}), L"`m`.age > 3");
  ASSERT_THROW(library.calls().usages(L"any(x IN n.list WHERE x)"), std::logic_error);
  // The first wrong filter builds the static data of the runtime.
  ASSERT_THROW(library.calls().usages(L"n.age > "), std::exception);
}

bool runsOutOfMemory(const LoadedLibrary& library) {
  try {
    library.calls().usages(L"n.age > ");
    return false;
  } catch (const std::bad_alloc&) {
    return true;
  } catch (const std::exception&) {
    return false;
  }
}

// The bytes that the process has allocated, by all allocators.
std::size_t privateMemory() {
  std::size_t total = 0;
  MEMORY_BASIC_INFORMATION region{};
  for (const char* place = nullptr; VirtualQuery(place, &region, sizeof region) != 0;
       place += region.RegionSize) {
    total += region.State == MEM_COMMIT && region.Type == MEM_PRIVATE ? region.RegionSize : 0;
  }
  return total;
}

DWORD handles() {
  DWORD count = 0;
  GetProcessHandleCount(GetCurrentProcess(), &count);
  return count;
}

// How many allocations succeed before one fails.
std::size_t allocationsLeft = 0;

void* failOnce(std::size_t bytes) {
  if (allocationsLeft-- == 0) {
    throw std::bad_alloc();
  }
  return operator new(bytes);
}

// How many locks a thread may release before it stops and holds one.
int locksLeft = 0;

HANDLE lockIsHeld() {
  static HANDLE const event = CreateEventW(nullptr, FALSE, FALSE, nullptr);
  return event;
}

int stopAtUnlock(pthread_mutex_t* mutex) {
  if (locksLeft-- == 0) {
    SetEvent(lockIsHeld());
    Sleep(INFINITE);
  }
  return pthread_mutex_unlock(mutex);
}

// Before Windows tells a library of the end of the process, it ends all other threads wherever they
// are.
[[noreturn]] void endWhileAThreadHoldsALock(const LoadedLibrary& library, UINT status) {
  replaceImport(library, "pthread_mutex_unlock", reinterpret_cast<void*>(&stopAtUnlock));
  std::thread([&] {
    callEverything(library);
    // The thread comes here if it has released fewer locks.
    SetEvent(lockIsHeld());
    Sleep(INFINITE);
  }).detach();
  WaitForSingleObject(lockIsHeld(), INFINITE);
  ExitProcess(status);
}

}  // namespace

TEST(Loading, DoesNotGrowTheProcessOverAThousandRounds) {
  constexpr int rounds = 1000;
  constexpr int warmUp = 100;
  // Less than the smallest part of the static data, which each round builds.
  constexpr std::size_t allowedForARound = 4096;
  std::size_t memoryBefore = 0;
  DWORD handlesBefore = 0;
  for (int i = 0; i < rounds; ++i) {
    if (i == warmUp) {
      memoryBefore = privateMemory();
      handlesBefore = handles();
    }
    {
      const LoadedLibrary library;
      callEverything(library);
      if (HasFatalFailure()) {
        return;
      }
    }
    ASSERT_FALSE(LoadedLibrary::isPresent());
  }
  EXPECT_LT(privateMemory(), memoryBefore + (rounds - warmUp) * allowedForARound);
  EXPECT_LE(handles(), handlesBefore + rounds / 100);
}

TEST(Loading, LeavesTheColumnsAloneWhenTheFirstCallRunsOutOfMemory) {
  const LoadedLibrary library;
  replaceImport(library, "_Znwy", reinterpret_cast<void*>(&failOnce));
  allocationsLeft = 0;
  Columns columns;
  EXPECT_EQ(library.calls().columns(L"MATCH (a_long_name) RETURN a_long_name", columns), 1);
  EXPECT_TRUE(columns.empty());
  allocationsLeft = std::numeric_limits<std::size_t>::max();
  callEverything(library);
}

// With this compiler std::call_once waits for ever after its function has thrown.
TEST(Loading, LeavesNoLockHeldWhenTheFirstCallRunsOutOfMemory) {
  int failures = 0;
  for (std::size_t successes = 0; successes < 100000; successes = 2 * successes + 1) {
    const LoadedLibrary library;
    replaceImport(library, "_Znwy", reinterpret_cast<void*>(&failOnce));
    allocationsLeft = successes;
    failures += runsOutOfMemory(library) ? 1 : 0;
    allocationsLeft = std::numeric_limits<std::size_t>::max();
    callEverything(library);
  }
  EXPECT_GE(failures, 10);
}

TEST(Loading, BuildsTheTablesOnceThoughManyThreadsCallFirst) {
  constexpr int rounds = 20;
  constexpr int threads = 8;
  for (int i = 0; i < rounds; ++i) {
    const LoadedLibrary library;
    std::atomic<int> waiting = threads;
    std::vector<std::thread> callers;
    callers.reserve(threads);
    for (int k = 0; k < threads; ++k) {
      callers.emplace_back([&] {
        for (--waiting; waiting > 0;) {
          std::this_thread::yield();
        }
        callEverything(library);
      });
    }
    for (std::thread& caller : callers) {
      caller.join();
    }
  }
}

TEST(EndOfTheProcess, DoesNotWaitForALockOfAThreadThatIsGone) {
  constexpr int status = 7;
  for (locksLeft = 0; locksLeft < 4; ++locksLeft) {
    EXPECT_EXIT(endWhileAThreadHoldsALock(LoadedLibrary(), status), testing::ExitedWithCode(status),
                "");
  }
}
