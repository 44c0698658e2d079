#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>

namespace leafund::random {

// A picture as far as it can be told without pixels; a width of 0 is no picture.
struct PictureFacts {
  int width = 0, height = 0;  // of the body, in pixels
  bool redrawn = false;       // at 128 x 128 points, stretched, twice as many pixels a side
  bool operator==(const PictureFacts&) const = default;
};

// How a view's border is painted.
struct BorderFacts {
  double width = 0, radius = 0;
  bool black = false, clips = false;
};

enum class Ink : std::uint8_t { Black, Red, Other };

// All that one named view shows, of whatever kind it is.
struct ViewFacts {
  std::string_view kind = {}, name = {}, text = {}, placeholder = {}, spoken = {};
  bool hidden = false, editing = false, masked = false, message = false, editable = false;
  bool selected = false, fillsByCutting = false;
  Ink ink = Ink::Black;
  int keyboard = 0;
  float progress = 0, progressFrom = 0;
  PictureFacts picture = {};
  BorderFacts border = {};
};

struct CellFacts {
  std::ptrdiff_t row = -1;  // where it is shown, or -1
  bool hidden = false;
  double top = 0, width = 0, height = 0;
  std::string_view title, detail;
  PictureFacts picture;
  BorderFacts border;
  std::size_t cards = 0;
  double lastCardWidth = 0;
};

struct TableFacts {
  double offset = 0, contentHeight = 0, rowHeight = 0;
};

struct ScreenFacts {
  std::string_view className, barTitle;
  bool barShown = false, backPossible = false, hidesBack = false;
  bool tabOnScreen = false;  // of a tab's screen: it stands among the views that are shown
  double y = 0, width = 0, height = 0;
};

// The words of a scene before logic writes any: the bar's, and those of each named view.
struct ViewWords {
  std::string text, placeholder, spoken;
};
struct SceneWords {
  std::string title;
  std::map<std::string, ViewWords> views;
};

// What can be seen of the whole application, as lines of text. The reference and the application
// under test each say their facts; a sheet only writes them down, alike for both, so that two
// sheets are equal when the facts are.
class Sheet {
 public:
  void clear() { lines_.clear(); }
  const std::string& lines() const { return lines_; }

  void screen(const ScreenFacts& facts);
  void view(const ViewFacts& facts);
  void table(const TableFacts& facts);
  void cell(const CellFacts& facts);
  void note(std::string_view what, std::string_view text);
  void note(std::string_view what, std::size_t count);

 private:
  void begin(std::string_view kind, std::string_view name);
  void end() { lines_ += '\n'; }
  void flag(bool value, std::string_view word);
  void number(std::string_view what, double value);
  void text(std::string_view what, std::string_view value);
  void picture(const PictureFacts& picture);
  void border(const BorderFacts& border);

  std::string lines_;
};

// The text with everything but printable ASCII written as an escape.
std::string readable(std::string_view text);

// The lines in which two sheets differ, readable; empty when they are equal.
std::string differences(const std::string& expected, const std::string& seen);

}  // namespace leafund::random
