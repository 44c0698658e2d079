#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>

namespace leafund::random {

// Numbers that look drawn by lot and are the same for a seed everywhere: SplitMix64 (Steele, Lea
// and Flood, 2014).
class Chance {
 public:
  explicit Chance(std::uint64_t seed) : state_(seed) {}

  std::uint64_t draw() {
    state_ += 0x9E3779B97F4A7C15ULL;
    std::uint64_t mixed = state_;
    mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9ULL;
    mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBULL;
    return mixed ^ (mixed >> 31);
  }
  // Below `bound`, which is not 0.
  std::size_t below(std::size_t bound) { return static_cast<std::size_t>(draw() % bound); }
  long between(long least, long most) {
    return least + static_cast<long>(below(static_cast<std::size_t>(most - least + 1)));
  }
  // In a hundred cases, so many on average.
  bool percent(std::size_t cases) { return below(100) < cases; }
  template <class List>
  const auto& oneOf(const List& list) {
    return list[below(std::size(list))];
  }

 private:
  std::uint64_t state_;
};

}  // namespace leafund::random
