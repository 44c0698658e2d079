#pragma once

#include <cstddef>
#include <cstdio>
#include <string>
#include <utility>

namespace leafund::fuzz {

// Counts what an execution alone does not tell, such as the pictures among the bodies, and says the
// sum at the end of the process, as libFuzzer says its own.
class Tally {
 public:
  explicit Tally(std::string what) : what_(std::move(what)) {}
  Tally(const Tally&) = delete;
  Tally& operator=(const Tally&) = delete;
  ~Tally() { std::fprintf(stderr, "stat::of_these: %zu %s\n", count_, what_.c_str()); }

  void add(std::size_t count) { count_ += count; }

 private:
  std::string what_;
  std::size_t count_ = 0;
};

}  // namespace leafund::fuzz
