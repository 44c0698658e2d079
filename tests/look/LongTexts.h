#pragma once

#include <string>

namespace leafund {

// Of many words, 200 characters.
inline std::string longTitle() {
  std::string title;
  while (title.size() < 200) title += "Hedgerows, ";
  return title.substr(0, 200);
}
// 60 wide and narrow letters without a place to break them.
inline std::string longName() { return std::string(30, 'W') + std::string(30, 'i'); }
// 463 characters, as many as the longest of the demonstration campaigns has.
inline std::string longDescription() {
  std::string text;
  while (text.size() < 463) text += "Every gutter in our street will get a barrel of its own. ";
  return text.substr(0, 463);
}

}  // namespace leafund
