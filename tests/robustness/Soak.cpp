// Makes random calls on all functions and prints the memory of the process at intervals: once the
// runtime's tables are built, it must stay flat.
//
//   soak MILLIONS

#include <unistd.h>

#include <cstddef>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>

#include "robustness/RandomTexts.h"

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

void soak(std::size_t calls) {
  const Calls library = {&vorn::GetOutputNamesAndTypes,
                         &vorn::GetVariableUsagesInPropertyFilterOCExpression,
                         &vorn::ReplaceVariableNamesInPropertyFilterOCExpression};
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

}  // namespace

int main(int argumentCount, char** arguments) {
  try {
    const double millions = argumentCount == 2 ? std::stod(*std::next(arguments)) : 0;
    const auto calls = static_cast<std::size_t>(millions * million);
    if (calls < intervals) {
      std::cerr << "soak: say how many millions of calls.\n";
      return EXIT_FAILURE;
    }
    soak(calls);
    return EXIT_SUCCESS;
  } catch (const std::exception& exception) {
    std::cerr << "soak: " << exception.what() << '\n';
    return EXIT_FAILURE;
  }
}
