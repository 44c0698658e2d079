#include "tests/random/TypedTexts.h"

#include <cmath>
#include <cstdio>
#include <limits>

namespace leafund::random {

namespace {

using namespace std::string_literals;

std::string formatted(const char* format, double value) {
  char text[400];
  return {text, static_cast<std::size_t>(std::snprintf(text, sizeof text, format, value))};
}

const std::string kHostile[] = {"",
                                " ",
                                "\t",
                                "\n",
                                "a\nb",
                                "\0"s,
                                "a\0b"s,
                                "%s%n%d",
                                "\xFF\xFE",
                                "\xED\xA0\x80",
                                "caf\xC3",
                                "\u202Eevil",
                                "\uFEFFname",
                                "\u0301",
                                "e\u0301\u0323",
                                "日本語",
                                "👩‍👩‍👧",
                                "<b>bold</b>",
                                "'; DROP TABLE campaigns; --",
                                "Error: Please Enter a Name",
                                "Error: Please Enter a URL",
                                "../../etc/passwd",
                                "\x1B[31mred",
                                "nil",
                                "otherCampaigns",
                                "NewCampaignVC"};

const char* const kAmounts[] = {"0",
                                "-0",
                                "1",
                                "10",
                                "25",
                                "12.50",
                                ".5",
                                "5.",
                                "1e2",
                                "1E2",
                                "-10",
                                "-1e30",
                                "nan",
                                "NAN",
                                "-nan",
                                "nan(1)",
                                "nan(",
                                "nan()",
                                "nan(a b)",
                                "inf",
                                "-inf",
                                "INFINITY",
                                "infinit",
                                "1e400",
                                "-1e400",
                                "1e-400",
                                "1e38",
                                "3.5e38",
                                "3.4028236e38",
                                "1e-45",
                                "7e-46",
                                "1e-46",
                                "0x10",
                                "0x1p3",
                                "0x.8",
                                "0x",
                                "0x1p",
                                "0x1p999",
                                "-0X1P-149",
                                "0x1.fffffep127",
                                "1e",
                                "1e+",
                                "1e+2",
                                "+5",
                                "--5",
                                "+-5",
                                "",
                                " 5",
                                "5 ",
                                "5\n",
                                "$5",
                                "5,00",
                                "1.2.3",
                                ".",
                                "-",
                                "e5",
                                "twenty",
                                "12a",
                                "1_000",
                                "16777217",
                                "0.1",
                                "0.30000001192092896",
                                "99.999",
                                "80",
                                "40",
                                "133",
                                "125",
                                "85",
                                "90",
                                "120",
                                "00012"};

std::string nearText(Chance& chance, float remaining) {
  constexpr float infinite = std::numeric_limits<float>::infinity();
  const float near[] = {remaining,
                        std::nextafter(remaining, infinite),
                        std::nextafter(remaining, -infinite),
                        remaining / 2,
                        remaining + 0.01F,
                        remaining - 0.01F};
  const char* const formats[] = {"%.9g", "%.2f", "%a", "%.20f", "%g"};
  return formatted(chance.oneOf(formats), static_cast<double>(chance.oneOf(near)));
}

std::string longText(Chance& chance) {
  const std::string piece = chance.percent(50) ? "x" : "é ";
  std::string text;
  const auto times = chance.below(3000);
  for (std::size_t at = 0; at < times; ++at) text += piece;
  return text;
}

}  // namespace

std::string plainText(Chance& chance) {
  static const char* const kTexts[] = {
      "Wren", "Rain Barrels",          "I'll catch the rain!", "Zelda Zinn",
      "x",    "No plastic for a year", "Every gutter.",        "Ünïcode",
      "  "};
  return chance.oneOf(kTexts);
}

std::string anyText(Chance& chance) {
  if (chance.percent(60)) return plainText(chance);
  if (chance.percent(3)) return longText(chance);
  if (chance.percent(70)) return chance.oneOf(kHostile);
  std::string bytes;
  for (std::size_t left = chance.below(40); left > 0; --left) {
    bytes += static_cast<char>(chance.below(256));
  }
  return bytes;
}

std::string amountText(Chance& chance, float remaining) {
  if (chance.percent(4)) return chance.percent(50) ? "nan" : "-nan(0)";
  if (chance.percent(25)) return nearText(chance, remaining);
  if (chance.percent(60)) return chance.oneOf(kAmounts);
  if (chance.percent(40)) return drawnFrom(chance, "0123456789.eExXpPinfa+-()_ ", 12);
  if (chance.percent(50)) {
    return formatted("%.7g", std::ldexp(static_cast<double>(chance.below(1U << 30)),
                                        static_cast<int>(chance.between(-200, 120))));
  }
  if (chance.percent(10)) return std::string(chance.below(3000) + 1, '9');
  if (chance.percent(50))
    return drawnFrom(chance, "0123456789", 60) + "." + drawnFrom(chance, "0123456789", 60);
  return anyText(chance);
}

}  // namespace leafund::random
