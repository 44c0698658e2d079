#include "platform/foundation/Diagnostics.h"

#include <array>
#include <charconv>
#include <cstdio>
#include <limits>

namespace leafund {

void writeDiagnosticLine(std::string_view line) {
  std::string whole{line};
  whole += '\n';
  // Through the C stream and not past it, so that the line keeps its place among other output.
  std::fwrite(whole.data(), 1, whole.size(), stdout);
  std::fflush(stdout);
}

std::string decimalText(std::ptrdiff_t number) {
  // Its digits10 leaves out the last, partly used digit; the sign takes one more.
  std::array<char, std::numeric_limits<std::ptrdiff_t>::digits10 + 2> digits{};
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
  return {digits.data(), end};
}

std::string positionText(std::optional<std::ptrdiff_t> position) {
  return position ? decimalText(*position) : "nil";
}

}  // namespace leafund
