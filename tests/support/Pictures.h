#pragma once

#include <string>

namespace leafund {

// A whole GIF of that size, one colour: the shortest body that is a picture on every host.
inline std::string pictureBody(unsigned width, unsigned height) {
  const auto low = [](unsigned value) { return static_cast<char>(value & 0xFF); };
  const auto high = [](unsigned value) { return static_cast<char>(value >> 8); };
  std::string body("GIF89a");
  body += {low(width), high(width), low(height), high(height)};
  body += std::string("\x80\0\0\x53\x86\x2F\xFF\xFF\xFF", 9);  // a table of two colours
  body += std::string("\x2C\0\0\0\0", 5);
  body += {low(width), high(width), low(height), high(height)};
  body += std::string("\0\x02\x02\x44\x01\0\x3B", 7);  // the pixels, cut short after the first
  return body;
}

}  // namespace leafund
