// Runs a fuzzer's target on files, and on all files of folders, without libFuzzer.

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

void replay(const std::filesystem::path& file) {
  std::ifstream in(file, std::ios::binary);
  const std::vector<char> bytes{std::istreambuf_iterator<char>(in), {}};
  // CTest shows this only if the test fails, and then the last name is that of the input.
  std::cout << file.string() << std::endl;
  LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
}

std::size_t replayAll(const std::filesystem::path& place) {
  if (std::filesystem::is_regular_file(place)) {
    replay(place);
    return 1;
  }
  std::size_t count = 0;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(place)) {
    if (entry.is_regular_file()) {
      replay(entry.path());
      ++count;
    }
  }
  return count;
}

}  // namespace

int main(int argc, char** argv) {
  std::size_t count = 0;
  for (int i = 1; i < argc; ++i) {
    count += replayAll(argv[i]);
  }
  std::cout << count << " inputs\n";
  return count == 0 ? 1 : 0;
}
