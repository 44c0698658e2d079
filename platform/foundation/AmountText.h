#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace leafund {

// Reads a typed amount of dollars, strictly: what `strtof` reads in the "C" locale when it consumes
// the whole text, whatever the locale of the process. So "1e3", ".5", "+5", "0x1p3", "inf" and
// "nan(1)" are amounts, and an amount too large for a float is infinite. No value for an empty
// text, or one that holds white space or a character outside ASCII anywhere.
std::optional<float> amountFromText(std::string_view text);

// "$" and the amount with two decimals, as `printf("%.2f")` writes it in the "C" locale: "$12.50",
// "$-3.00", "$inf", "$-nan", "$-0.00".
std::string dollarText(float amount);

}  // namespace leafund
