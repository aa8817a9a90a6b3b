#include "PredictionTables.h"

#include <atn/ATN.h>

#include <array>
#include <mutex>
#include <new>
#include <utility>

namespace vorn {

namespace {

// A configuration takes about 170 bytes, all that belongs to it included: this is some 64 MiB.
constexpr std::size_t maxConfigurations = 400'000;

// Is never destroyed: at the end of the process other threads may still make calls. The tables are
// let go all the same, for the sake of a host that unloads the library.
struct Shared {
  static Shared& instance() {
    alignas(Shared) static std::array<std::byte, sizeof(Shared)> storage;
    static Shared* const shared = ::new (storage.data()) Shared;
    struct Release {
      ~Release() {
        const std::lock_guard<std::mutex> lock(shared->mutex);
        shared->tables.reset();
      }
    };
    static const Release release;
    return *shared;
  }

  std::mutex mutex;
  std::shared_ptr<PredictionTables> tables;
};

}  // namespace

PredictionTables::PredictionTables(const antlr4::atn::ATN& atn) {
  const std::size_t count = atn.getNumberOfDecisions();
  decisions.reserve(count);
  for (std::size_t i = 0; i < count; ++i) {
    decisions.emplace_back(atn.getDecisionState(i), i);
  }
}

std::shared_ptr<PredictionTables> PredictionTables::current(const antlr4::atn::ATN& atn) {
  Shared& shared = Shared::instance();
  std::shared_ptr<PredictionTables> outgrown;  // goes after the lock
  const std::lock_guard<std::mutex> lock(shared.mutex);
  if (shared.tables == nullptr || shared.tables->configurations > maxConfigurations) {
    auto fresh = std::make_shared<PredictionTables>(atn);
    outgrown = std::exchange(shared.tables, std::move(fresh));
  }
  return shared.tables;
}

}  // namespace vorn
