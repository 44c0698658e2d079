#pragma once

#include <cstdint>
#include <deque>

namespace leafund {

// How fast a finger was drawn when it was lifted: over its last moments, and not at all where it
// rested before. Ways in points, times in milliseconds.
class DragSpeed {
 public:
  void note(double way, std::int64_t time) {
    forget(time);
    moves_.push_back({way, time});
  }
  // Points a millisecond.
  double at(std::int64_t time) {
    forget(time);
    if (moves_.size() < 2) return 0;
    const auto passed = moves_.back().time - moves_.front().time;
    return passed > 0 ? (moves_.back().way - moves_.front().way) / static_cast<double>(passed) : 0;
  }
  double way() const { return moves_.empty() ? 0 : moves_.back().way; }

 private:
  static constexpr std::int64_t kMoments = 100;
  struct Move {
    double way;
    std::int64_t time;
  };
  // The last one stays.
  void forget(std::int64_t time) {
    while (moves_.size() > 1 && time - moves_.front().time > kMoments) moves_.pop_front();
  }

  std::deque<Move> moves_;
};

}  // namespace leafund
