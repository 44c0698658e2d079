#pragma once

#include <QCoreApplication>
#include <QTimer>
#include <algorithm>
#include <chrono>
#include <ctime>
#include <functional>

namespace leafund {

// The time that this thread alone has computed, in milliseconds: what else the machine does is not
// in it.
inline double computedMilliseconds() {
  timespec time{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
  return 1e3 * static_cast<double>(time.tv_sec) + 1e-6 * static_cast<double>(time.tv_nsec);
}

// Does the step and serves events until it is so, for a generous time. Returns the most that this
// thread computed without looking for events in between, in milliseconds.
inline double longestHold(const std::function<void()>& step, const std::function<bool()>& done) {
  const auto patience = std::chrono::steady_clock::now() + std::chrono::seconds(30);
  QTimer heartbeat;
  heartbeat.start(20);
  double before = computedMilliseconds();
  step();
  double longest = computedMilliseconds() - before;
  while (!done() && std::chrono::steady_clock::now() < patience) {
    before = computedMilliseconds();
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    longest = std::max(longest, computedMilliseconds() - before);
  }
  return longest;
}

}  // namespace leafund
