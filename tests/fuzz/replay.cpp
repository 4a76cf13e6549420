// Gives each file of a folder to a fuzz target.
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  int files = 0;
  for (const auto& entry : std::filesystem::directory_iterator(argv[1])) {
    std::cerr << entry.path().filename() << '\n';
    std::ifstream file(entry.path(), std::ios::binary);
    const std::string bytes(std::istreambuf_iterator<char>(file), {});
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
    ++files;
  }
  return files > 0 ? 0 : 1;
}
