#pragma once

#include <QAnimationDriver>

namespace leafund {

// The time of animations, in milliseconds. It passes only when it is told to, so that a test
// decides what is met in the middle of a movement.
class FrameClock : public QAnimationDriver {
 public:
  FrameClock() { install(); }

  void pass(int milliseconds) {
    now_ += milliseconds;
    sinceStart_ += milliseconds;
    if (isRunning()) advanceAnimation();
  }
  qint64 elapsed() const override { return sinceStart_; }
  int now() const { return now_; }

 protected:
  void start() override {
    sinceStart_ = 0;
    QAnimationDriver::start();
  }

 private:
  qint64 sinceStart_ = 0;
  int now_ = 1000;
};

}  // namespace leafund
