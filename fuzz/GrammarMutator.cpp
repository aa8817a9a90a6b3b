// Changes a derivation by whole rules; libFuzzer itself would change single bytes.

#include <algorithm>
#include <random>
#include <vector>

#include "Derivation.h"

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t maxSize);

namespace {

using Bytes = std::vector<std::uint8_t>;
using Random = std::minstd_rand;

std::size_t below(std::size_t bound, Random& random) {
  return std::uniform_int_distribution<std::size_t>(0, bound - 1)(random);
}

Bytes drawn(std::size_t size, Random& random) {
  Bytes bytes(size);
  std::generate(bytes.begin(), bytes.end(),
                [&] { return static_cast<std::uint8_t>(below(0x100, random)); });
  return bytes;
}

Bytes replaced(const Bytes& bytes, const Derivation::Span& span, const Bytes& replacement) {
  Bytes result(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(span.begin));
  result.insert(result.end(), replacement.begin(), replacement.end());
  result.insert(result.end(), bytes.begin() + static_cast<std::ptrdiff_t>(span.end), bytes.end());
  return result;
}

// The choices of some span of this rule; empty if there is no such span.
Bytes otherChoices(const Bytes& bytes, std::uint32_t rule, Random& random) {
  std::vector<Derivation::Span> same;
  for (const Derivation::Span& span : derive(bytes.data(), bytes.size()).spans) {
    if (span.rule == rule) {
      same.push_back(span);
    }
  }
  if (same.empty()) {
    return {};
  }
  const Derivation::Span& span = same[below(same.size(), random)];
  return {bytes.begin() + static_cast<std::ptrdiff_t>(span.begin),
          bytes.begin() + static_cast<std::ptrdiff_t>(span.end)};
}

std::size_t store(const Bytes& bytes, std::uint8_t* data, std::size_t maxSize) {
  const std::size_t size = std::min(bytes.size(), maxSize);
  std::copy_n(bytes.begin(), size, data);
  return size;
}

}  // namespace

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size,
                                               std::size_t maxSize, unsigned seed) {
  constexpr std::size_t longestPart = 40;
  Random random(seed);
  const Bytes bytes(data, data + size);
  const std::vector<Derivation::Span> spans = derive(data, size).spans;
  if (size == 0 || below(4, random) == 0) {
    return LLVMFuzzerMutate(data, size, maxSize);
  }
  const Derivation::Span& span = spans[below(spans.size(), random)];
  const Bytes part = below(2, random) == 0 ? drawn(1 + below(longestPart, random), random)
                                           : otherChoices(bytes, span.rule, random);
  return store(replaced(bytes, span, part), data, maxSize);
}

extern "C" std::size_t LLVMFuzzerCustomCrossOver(const std::uint8_t* one, std::size_t oneSize,
                                                 const std::uint8_t* other, std::size_t otherSize,
                                                 std::uint8_t* out, std::size_t maxSize,
                                                 unsigned seed) {
  Random random(seed);
  const Bytes bytes(one, one + oneSize);
  const std::vector<Derivation::Span> spans = derive(one, oneSize).spans;
  const Derivation::Span& span = spans[below(spans.size(), random)];
  const Bytes part = otherChoices(Bytes(other, other + otherSize), span.rule, random);
  return store(replaced(bytes, span, part), out, maxSize);
}
