#pragma once

// What tests take for granted and the browser's program has not; included before anything else.
#include <cstdlib>
#include <functional>
#include <string>

#include "platform/web/Bridge.h"

// Threads. What another one would do is done at once, as the host runs the completions of its
// session: outside any turn and with onMain() false.

namespace leafund {
void runAsAnotherThread(const std::function<void()>& work);
bool onAnotherThread();
}  // namespace leafund

namespace std {

class mutex {
 public:
  void lock() {}
  void unlock() {}
  bool try_lock() { return true; }
};

class thread {
 public:
  struct id {
    bool other = true;
    bool operator==(const id&) const = default;
  };
  explicit thread(const std::function<void()>& work) { leafund::runAsAnotherThread(work); }
  void join() {}
};

namespace this_thread {
inline thread::id get_id() { return {leafund::onAnotherThread()}; }
}  // namespace this_thread

}  // namespace std

// Files to keep standard output in: the lines on the console are kept instead.
namespace leafund::page {
// Begins to keep, or ends and answers what was kept, to be freed.
LEAFUND_FROM_PAGE(captured) char* captured(int begin);
}  // namespace leafund::page

namespace testing::internal {

inline void CaptureStdout() { std::free(leafund::page::captured(1)); }
inline std::string GetCapturedStdout() {
  char* kept = leafund::page::captured(0);
  std::string text(kept);
  std::free(kept);
  return text;
}

}  // namespace testing::internal
