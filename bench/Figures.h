#pragma once

#include <time.h>

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdio>
#include <fstream>
#include <functional>
#include <string>
#include <vector>

#include "bench/Campaigns.h"

namespace leafund {

// Where a program writes what it measured: a line a figure, its name and its value, in the file
// named on the command line. Standard output is the application's own.
class Figures {
 public:
  Figures(int argc, char** argv) : file_(argc > 1 ? argv[1] : "") {
    demand(file_.is_open(), "the program was given a file for its figures");
  }
  void add(const std::string& name, double value) { file_ << name << ' ' << value << '\n'; }

 private:
  std::ofstream file_;
};

// The processor time that work takes on this thread: what else the machine does is not in it. Never
// inlined, so that a profiler can be told to look at what is timed alone.
[[gnu::noinline]] inline double secondsOf(const std::function<void()>& work) {
  const auto now = [] {
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
  };
  const double start = now();
  work();
  return now() - start;
}

// The time that passes meanwhile, for what several threads do, and what waits.
inline double wallSecondsOf(const std::function<void()>& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

// The value that this share of all the values does not exceed.
inline double quantile(std::vector<double> values, double share) {
  demand(!values.empty(), "something was measured");
  const auto place = static_cast<std::size_t>(share * static_cast<double>(values.size() - 1));
  std::nth_element(values.begin(), values.begin() + static_cast<std::ptrdiff_t>(place),
                   values.end());
  return values[place];
}

inline double median(std::vector<double> values) { return quantile(std::move(values), 0.5); }

}  // namespace leafund
