#pragma once

#include <string>
#include <string_view>

namespace leafund {

// Writes one JSON object, or one list, whose members have no name.
class Json {
 public:
  static Json object() { return {'{', '}'}; }
  static Json list() { return {'[', ']'}; }

  Json& text(std::string_view name, std::string_view value);
  Json& number(std::string_view name, double value);
  // What does not hold is left out.
  Json& flag(std::string_view name, bool value);
  Json& member(std::string_view name, const Json& value);

  std::string whole() const { return text_ + close_; }

 private:
  Json(char open, char close) : text_(1, open), close_(close) {}
  void begin(std::string_view name);
  void quote(std::string_view value);

  std::string text_;
  char close_;
};

}  // namespace leafund
