#include "platform/qt/PressSeries.h"

#include <cmath>

namespace leafund {

namespace {

// Nobody presses a key again so soon after letting it go, in milliseconds.
constexpr std::uint64_t kHeld = 10;

}  // namespace

bool PressSeries::continues(const Press& press, int interval) {
  changedTop_ = changedTop_ && follows(press, interval);
  last_ = press;
  released_.reset();
  return changedTop_;
}

bool PressSeries::follows(const Press& press, int interval) const {
  if (!last_ || press.device != last_->device || press.button != last_->button) return false;
  if (press.repeat || (released_ && press.time - *released_ < kHeld)) return true;
  const auto apart = press.place - last_->place;
  return press.time - last_->time <= static_cast<std::uint64_t>(interval) &&
         std::abs(apart.x()) <= press.reach && std::abs(apart.y()) <= press.reach;
}

}  // namespace leafund
