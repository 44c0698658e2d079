#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace leafund {

// What decides where the edges of letters fall, by versions: "Qt 6.4.2, FreeType 2.12.1, Inter
// 4.000". Needs the application object.
std::string textRendering();

// With what each approved picture was rendered: the first line of the file holds for all, except
// for those that the lines behind it name.
class RenderingRecord {
 public:
  explicit RenderingRecord(const std::filesystem::path& file);

  // Empty when the file does not say.
  const std::string& of(const std::string& picture) const;

  std::vector<std::string> named() const;

 private:
  std::string first_;
  std::map<std::string, std::string> named_;
};

}  // namespace leafund
