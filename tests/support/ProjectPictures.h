#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <string>

namespace leafund {

// The project's own pictures by their file names.
inline std::map<std::string, std::string> projectPictures() {
  std::map<std::string, std::string> pictures;
  for (const auto& file : std::filesystem::directory_iterator(LEAFUND_PICTURES_DIR)) {
    if (file.path().extension() != ".jpg") continue;
    std::ifstream stream(file.path(), std::ios::binary);
    pictures[file.path().filename().string()] = {std::istreambuf_iterator<char>(stream), {}};
  }
  return pictures;
}

}  // namespace leafund
