#include <utility>

#include "tests/random/ReferenceApp.h"

// Transfers, and what becomes of their bodies.
namespace leafund::random {

namespace {

// A body is a picture when its sides are 1 to 65,535 pixels.
PictureFacts pictureIn(const Action& action, double width) {
  const bool fits = action.ending == Ending::Picture && width >= 1 && action.height >= 1 &&
                    width <= 65535 && action.height <= 65535;
  if (!fits) return {};
  return {static_cast<int>(width), static_cast<int>(action.height), false};
}

}  // namespace

void ReferenceApp::fetch(Transfer transfer) { transfers_.push_back(std::move(transfer)); }

void ReferenceApp::end(std::size_t position, const Action& action, double width) {
  Step step{std::move(transfers_[position]), std::nullopt, false};
  transfers_.erase(transfers_.begin() + static_cast<std::ptrdiff_t>(position));
  // Whatever the body is, it is applied; an error and no body are passed over.
  step.applies = action.ending == Ending::Picture || action.ending == Ending::Junk;
  if (step.applies) step.body = pictureIn(action, width);
  steps_.push_back(std::move(step));
}

void ReferenceApp::answerAll(const Action& action) {
  double width = action.width;
  while (!transfers_.empty()) {
    end(action.number % 2 == 0 ? 0 : transfers_.size() - 1, action, width++);
    drain();
  }
}

void ReferenceApp::drain(bool all) {
  while (!steps_.empty()) {
    const Step step = std::move(steps_.front());
    steps_.pop_front();
    if (step.applies) apply(step);
    if (!all) return;
  }
}

bool ReferenceApp::bodiesWait() const {
  for (const auto& step : steps_) {
    if (step.applies) return true;
  }
  return false;
}

void ReferenceApp::apply(const Step& step) {
  const auto& [address, screen, row, picture] = step.transfer;
  if (!row) {
    screen->at(picture.c_str()).picture = *step.body;
    return;
  }
  if (step.body->width == 0) {
    throw Stopped{className(screen->scene), "the downloaded body is not a picture"};
  }
  if (twist_ == Twist::PictureGoesToTheRow && row->hidden) return;
  row->picture = *step.body;
  row->picture.redrawn = true;
  ++redrawings_;
}

}  // namespace leafund::random
