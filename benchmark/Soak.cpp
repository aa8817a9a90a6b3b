#include <unistd.h>

#include <cstddef>
#include <fstream>
#include <iostream>
#include <stdexcept>
#include <string>

#include "Commands.h"
#include "robustness/RandomTexts.h"
#include "subjects/Library.h"

namespace {

constexpr std::size_t million = 1'000'000;
constexpr std::size_t intervals = 20;

std::size_t residentMebibytes() {
  std::ifstream status("/proc/self/statm");
  std::size_t all = 0;
  std::size_t resident = 0;
  status >> all >> resident;
  return resident * static_cast<std::size_t>(::sysconf(_SC_PAGESIZE)) / (1 << 20);
}

bool isRefusal(const std::string& answer) {
  return answer.rfind("status 1", 0) == 0 || answer.rfind("failed", 0) == 0 ||
         answer.rfind("forbidden", 0) == 0;
}

}  // namespace

void soak(const Arguments& arguments) {
  const Calls library = loadCalls(arguments.at(0));
  const auto calls = static_cast<std::size_t>(std::stod(arguments.at(1)) * million);
  if (calls < intervals) {
    throw std::invalid_argument("say how many millions of calls");
  }
  RandomTexts texts(1);
  std::size_t refused = 0;
  std::cout << "calls\trefused\tresident MiB\n";
  for (std::size_t call = 1; call <= calls; ++call) {
    refused += isRefusal(answer(library, randomQuestion(texts))) ? 1 : 0;
    if (call % (calls / intervals) == 0) {
      std::cout << call << '\t' << refused << '\t' << residentMebibytes() << std::endl;
    }
  }
}
