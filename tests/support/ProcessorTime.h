#pragma once

#include <ctime>

namespace leafund {

// What this process has computed so far, in seconds: a busy machine makes no difference to it.
inline double processorSeconds() { return static_cast<double>(std::clock()) / CLOCKS_PER_SEC; }

}  // namespace leafund
