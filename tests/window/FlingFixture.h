#pragma once

#include <QWheelEvent>

#include "tests/support/FrameClock.h"
#include "tests/window/FingerFixture.h"

namespace leafund {

// A list that is flung, frame by frame.
class FlingFixture : public FingerTest {
 protected:
  static constexpr int kFrame = 16;        // milliseconds
  static constexpr int kMostFrames = 400;  // a fling takes 2 to 3 seconds
  double offset() { return app.require("table").property("contentY").toDouble(); }
  bool moving() { return app.require("table").property("moving").toBool(); }

  static QQuickItem& flickableOf(QQuickItem& item) {
    auto* each = &item;
    while (!each->property("contentY").isValid()) each = each->parentItem();
    return *each;
  }

  void frame() {
    QCoreApplication::processEvents();
    clock->pass(kFrame);
    QEvent draw(QEvent::UpdateRequest);
    QCoreApplication::sendEvent(&app.window(), &draw);
    QCoreApplication::processEvents();
  }
  // Until nothing is animated any more.
  void rest() {
    for (int frames = 0; frames < kMostFrames && (frames < 3 || clock->isRunning()); ++frames)
      frame();
    EXPECT_FALSE(clock->isRunning());
  }
  void fling(double pointsPerSecond) {
    QMetaObject::invokeMethod(&app.require("table"), "flick", Q_ARG(double, 0),
                              Q_ARG(double, pointsPerSecond));
    rest();
  }
  static constexpr int kNotch = 120;          // eighths of a degree
  static constexpr int kStep = 80;            // points that one leads
  static constexpr int kOvershootBounds = 2;  // of Flickable
  void turnWheel(int eighths, QPoint points = {}, Qt::ScrollPhase phase = Qt::NoScrollPhase) {
    const QPointF at(200, 400);
    QWheelEvent event(at, app.window().mapToGlobal(at), points, {0, eighths}, {}, {}, phase, false);
    QCoreApplication::sendEvent(&app.window(), &event);
  }

  FrameClock* clock = nullptr;  // once the screen stands
};

}  // namespace leafund
