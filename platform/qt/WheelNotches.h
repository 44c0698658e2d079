#pragma once

#include <cstdint>

namespace leafund {

// Gathers the turns of a fine wheel, or of two fingers on a touchpad that is told as one, to whole
// notches. Qt makes a speed of each turn, and of a slow and fine one no movement at all.
class WheelNotches {
 public:
  static constexpr int kNotch = 120;            // eighths of a degree
  static constexpr std::uint64_t kPause = 500;  // milliseconds, after which a turn begins anew

  // Takes a turn, in eighths of a degree, at a time in milliseconds. Answers the notches that are
  // full by now, in eighths of a degree: zero while the first is not.
  int add(int eighths, std::uint64_t time) {
    const bool turnedRound = (eighths < 0) != (gathered_ < 0);
    if (turnedRound || time - last_ > kPause) gathered_ = 0;
    last_ = time;
    gathered_ += eighths;
    const int full = gathered_ - gathered_ % kNotch;
    gathered_ -= full;
    return full;
  }

 private:
  int gathered_ = 0;
  std::uint64_t last_ = 0;
};

}  // namespace leafund
