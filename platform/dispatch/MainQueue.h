#pragma once

#include <functional>

namespace leafund {

struct MainQueue {};

inline MainQueue dispatch_get_main_queue() { return {}; }

// Runs the step later on the main thread, in the order posted. From any thread.
void dispatch_async(MainQueue queue, std::function<void()> step);

}  // namespace leafund
