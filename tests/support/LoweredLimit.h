#pragma once

#include <sys/resource.h>
#include <unistd.h>

namespace leafund {

// A limit of the process, lowered for as long as this lives.
class LoweredLimit {
 public:
  LoweredLimit(decltype(RLIMIT_AS) which, rlim_t most) : which_(which) {
    getrlimit(which_, &before_);
    const rlimit lowered{most, before_.rlim_max};
    setrlimit(which_, &lowered);
  }
  LoweredLimit(const LoweredLimit&) = delete;
  LoweredLimit& operator=(const LoweredLimit&) = delete;
  ~LoweredLimit() { setrlimit(which_, &before_); }

 private:
  decltype(RLIMIT_AS) which_;
  rlimit before_{};
};

// The lowest descriptor that is free.
inline rlim_t descriptorsInUse() {
  const int free = dup(0);
  close(free);
  return static_cast<rlim_t>(free);
}

}  // namespace leafund
