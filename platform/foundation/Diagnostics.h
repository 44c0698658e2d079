#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace leafund {

// Writes `line` and one line feed to standard output, and out of the process before it returns:
// abort() flushes no stream, and the last lines before a fatal error are the ones that matter. The
// text goes out byte for byte, whatever it holds. A standard output that cannot be written is
// ignored. Callable from any thread; a line is never mixed with another.
void writeDiagnosticLine(std::string_view line);

// The number in decimal digits with a leading "-" when negative; the same in every locale.
std::string decimalText(std::ptrdiff_t number);

// The position in decimal digits, or "nil" when there is none.
std::string positionText(std::optional<std::ptrdiff_t> position);

}  // namespace leafund
