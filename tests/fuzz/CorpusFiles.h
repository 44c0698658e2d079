#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace leafund::fuzz {

struct CorpusFile {
  std::string name;
  std::string bytes;
};

// The inputs that are kept for one fuzzer.
inline std::vector<CorpusFile> corpus(const std::string& fuzzer) {
  std::vector<CorpusFile> files;
  const std::filesystem::path folder = LEAFUND_CORPORA_DIR;
  for (const auto& entry : std::filesystem::directory_iterator(folder / fuzzer)) {
    std::ifstream file(entry.path(), std::ios::binary);
    files.push_back({entry.path().filename().string(), {std::istreambuf_iterator<char>(file), {}}});
  }
  return files;
}

}  // namespace leafund::fuzz
