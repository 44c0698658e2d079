#pragma once

#include <fstream>
#include <string>

namespace leafund {

// In kilobytes, what the system notes of this process: "VmRSS" is the memory that it holds, "VmHWM"
// the most that it ever held, and "VmPeak" the most room, also such as was never filled.
inline long kilobytes(const std::string& name) {
  std::ifstream status("/proc/self/status");
  std::string word;
  while (status >> word && word != name + ':') continue;
  long number = 0;
  status >> number;
  return number;
}

}  // namespace leafund
