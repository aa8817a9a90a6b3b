// Writes generated queries, filters and refused filters as JSON strings, one on a line.
//
//     generate_texts queries|filters|forbidden-filters COUNT SEED

#include <rapidcheck.h>

#include <cstdint>
#include <iostream>
#include <nlohmann/json.hpp>
#include <string>

#include "columns/QueryGenerator.h"
#include "filters/FilterGenerator.h"
#include "support/Gaps.h"

namespace {

rc::Gen<std::string> genText(const std::string& kind) {
  return rc::gen::exec([kind] {
    if (kind == "queries") {
      return withDrawnGaps((*genQuery()).textWithOwnAliases());
    }
    return withDrawnGaps((*(kind == "filters" ? genFilter() : genForbiddenFilter())).text);
  });
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 4) {
    return 2;
  }
  const rc::Gen<std::string> gen = genText(argv[1]);
  const int count = std::stoi(argv[2]);
  rc::Random random(std::stoull(argv[3]));
  for (int i = 0; i < count; ++i) {
    constexpr int largest = 100;
    const std::string text = gen(random.split(), i % largest).value();
    std::cout << nlohmann::json(text).dump() << '\n';
  }
}
