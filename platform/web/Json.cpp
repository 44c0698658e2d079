#include "platform/web/Json.h"

#include <array>
#include <cstdio>

namespace leafund {

Json& Json::text(std::string_view name, std::string_view value) {
  begin(name);
  quote(value);
  return *this;
}

Json& Json::number(std::string_view name, double value) {
  begin(name);
  // The C library here has no other locale than "C", and its printf is in the program anyway.
  std::array<char, 32> digits{};
  std::snprintf(digits.data(), digits.size(), "%.12g", value);
  text_ += digits.data();
  return *this;
}

Json& Json::flag(std::string_view name, bool value) { return value ? number(name, 1) : *this; }

Json& Json::member(std::string_view name, const Json& value) {
  begin(name);
  text_ += value.whole();
  return *this;
}

void Json::begin(std::string_view name) {
  if (text_.size() > 1) text_ += ',';
  if (name.empty()) return;
  quote(name);
  text_ += ':';
}

void Json::quote(std::string_view value) {
  constexpr std::string_view hex = "0123456789abcdef";
  text_ += '"';
  for (const char byte : value) {
    const auto code = static_cast<unsigned char>(byte);
    if (code < 0x20) {
      text_ += "\\u00";
      text_ += hex[code >> 4U];
      text_ += hex[code & 0xFU];
      continue;
    }
    if (byte == '"' || byte == '\\') text_ += '\\';
    text_ += byte;
  }
  text_ += '"';
}

}  // namespace leafund
