#pragma once

#include <cstddef>
#include <cstdint>

namespace compare {

/// Random numbers that are the same on every platform.
class Random {
 public:
  explicit Random(std::uint64_t seed) : state(seed) {}

  std::uint64_t next() {  // splitmix64
    state += 0x9E3779B97F4A7C15U;
    std::uint64_t mixed = state;
    mixed = (mixed ^ (mixed >> 30U)) * 0xBF58476D1CE4E5B9U;
    mixed = (mixed ^ (mixed >> 27U)) * 0x94D049BB133111EBU;
    return mixed ^ (mixed >> 31U);
  }

  std::size_t below(std::size_t bound) { return static_cast<std::size_t>(next() % bound); }

  bool oneIn(std::size_t chances) { return below(chances) == 0; }

  template <typename Range>
  auto pick(const Range& range) -> decltype(range[0]) {
    return range[below(std::size(range))];
  }

 private:
  std::uint64_t state;
};

}  // namespace compare
