#include "tests/random/Sheet.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <sstream>
#include <vector>

namespace leafund::random {

namespace {

// Longer texts are told by their length, their hash and their beginning.
constexpr std::size_t kWholeText = 160;
constexpr std::size_t kBeginning = 40;

template <class Number>
void append(std::string& lines, Number value) {
  std::array<char, 64> digits;
  lines.append(digits.data(), std::to_chars(digits.data(), digits.data() + 64, value).ptr);
}

std::vector<std::string> splitLines(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

}  // namespace

void Sheet::begin(std::string_view kind, std::string_view name) {
  lines_ += kind;
  lines_ += ' ';
  lines_ += name;
}

void Sheet::flag(bool value, std::string_view word) {
  if (!value) return;
  lines_ += ' ';
  lines_ += word;
}

void Sheet::number(std::string_view what, double value) {
  if (value == 0) return;
  lines_ += ' ';
  lines_ += what;
  lines_ += '=';
  if (std::isnan(value)) {
    lines_ += "nan";
  } else {
    append(lines_, value);
  }
}

void Sheet::text(std::string_view what, std::string_view value) {
  if (value.empty()) return;
  lines_ += ' ';
  lines_ += what;
  lines_ += '=';
  append(lines_, value.size());
  lines_ += ':';
  if (value.size() <= kWholeText) {
    lines_ += value;
    return;
  }
  lines_ += value.substr(0, kBeginning);
  lines_ += '~';
  append(lines_, std::hash<std::string_view>{}(value));
}

void Sheet::picture(const PictureFacts& picture) {
  if (picture.width == 0) return;
  number("picture", picture.width);
  number("by", picture.height);
  flag(picture.redrawn, "redrawn");
}

void Sheet::border(const BorderFacts& border) {
  number("border", border.width);
  number("radius", border.radius);
  flag(border.black, "black-border");
  flag(border.clips, "clips");
}

void Sheet::screen(const ScreenFacts& facts) {
  begin("screen", facts.className);
  text("bar", facts.barTitle);
  flag(facts.barShown, "bar-shown");
  flag(facts.backPossible, "back");
  flag(facts.hidesBack, "hides-back");
  flag(facts.tabOnScreen, "on-screen");
  number("y", facts.y);
  number("width", facts.width);
  number("height", facts.height);
  end();
}

void Sheet::view(const ViewFacts& facts) {
  begin(facts.kind, facts.name);
  flag(facts.hidden, "hidden");
  text("text", facts.text);
  text("placeholder", facts.placeholder);
  text("spoken", facts.spoken);
  flag(facts.editing, "editing");
  flag(facts.masked, "masked");
  flag(facts.message, "message");
  flag(facts.editable, "editable");
  flag(facts.selected, "selected");
  flag(facts.fillsByCutting, "fills-by-cutting");
  if (facts.ink != Ink::Black) flag(true, facts.ink == Ink::Red ? "red" : "other-ink");
  number("keyboard", facts.keyboard);
  number("progress", static_cast<double>(facts.progress));
  number("from", static_cast<double>(facts.progressFrom));
  picture(facts.picture);
  border(facts.border);
  end();
}

void Sheet::table(const TableFacts& facts) {
  begin("table", "");
  number("offset", facts.offset);
  number("content", facts.contentHeight);
  number("row-height", facts.rowHeight);
  end();
}

void Sheet::cell(const CellFacts& facts) {
  begin("cell", "");
  append(lines_, facts.row);
  flag(facts.hidden, "hidden");
  number("top", facts.top);
  number("width", facts.width);
  number("height", facts.height);
  text("title", facts.title);
  text("detail", facts.detail);
  number("cards", static_cast<double>(facts.cards));
  number("card-width", facts.lastCardWidth);
  picture(facts.picture);
  border(facts.border);
  end();
}

void Sheet::note(std::string_view what, std::string_view value) {
  begin("note", what);
  text("", value);
  end();
}

void Sheet::note(std::string_view what, std::size_t count) {
  begin("note", what);
  lines_ += ' ';
  append(lines_, count);
  end();
}

std::string readable(std::string_view text) {
  static constexpr std::string_view kHex = "0123456789abcdef";
  std::string line;
  for (const char character : text) {
    const auto code = static_cast<unsigned char>(character);
    if (code >= 32 && code < 127 && character != '\\' && character != '"') {
      line += character;
    } else {
      line += {'\\', 'x', kHex[code >> 4], kHex[code & 15]};
    }
  }
  return line;
}

std::string differences(const std::string& expected, const std::string& seen) {
  if (expected == seen) return {};
  auto should = splitLines(expected);
  auto is = splitLines(seen);
  // A line too many moves those below it; what is the same from the end upwards is left out.
  while (!should.empty() && !is.empty() && should.back() == is.back()) {
    should.pop_back();
    is.pop_back();
  }
  std::string told;
  for (std::size_t at = 0; at < std::max(should.size(), is.size()); ++at) {
    const std::string one = at < should.size() ? should[at] : "(nothing)";
    const std::string other = at < is.size() ? is[at] : "(nothing)";
    if (one == other) continue;
    told += "  expected: " + readable(one) + "\n  seen:     " + readable(other) + "\n";
    if (told.size() > 4000) break;
  }
  return told;
}

}  // namespace leafund::random
