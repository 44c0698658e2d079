#pragma once

#include <QPointF>
#include <cstdint>
#include <optional>

namespace leafund {

// One press of a pointer's button, a finger or a key. Times in milliseconds, by the event.
struct Press {
  const void* device = nullptr;
  int button = 0;  // of a pointer, or the key
  std::uint64_t time = 0;
  QPointF place;        // in the window, in points
  double reach = 0;     // how far apart two clicks of a double click may lie, in points
  bool repeat = false;  // told to be the repeat of a held key
};

// Tells which presses are only part of an earlier one. Where the first click of a double click
// changed the top screen, the second was meant for what is gone, and whatever has come to lie below
// the pointer is not to be pressed: neither by it nor by the repeats of a key that is held down.
class PressSeries {
 public:
  // To be told of every press before anything comes of it. True when it is part of an earlier one
  // that changed the top screen. `interval` is that of a double click, in milliseconds.
  bool continues(const Press& press, int interval);
  // A key was let go. A window system that tells a held key as many short presses lets each go at
  // the moment of the next.
  void released(std::uint64_t time) { released_ = time; }
  // The last press changed the top screen.
  void changedTop() { changedTop_ = true; }

 private:
  bool follows(const Press& press, int interval) const;

  std::optional<Press> last_;
  std::optional<std::uint64_t> released_;
  bool changedTop_ = false;  // the last press, or one that it continued
};

}  // namespace leafund
