#include <QWheelEvent>

#include "tests/support/FrameClock.h"
#include "tests/window/WindowFixture.h"

namespace leafund {
namespace {

constexpr int kFrame = 16;        // milliseconds
constexpr int kMostFrames = 400;  // a fling takes 2 to 3 seconds

// A list that is flung, frame by frame.
class FlingTest : public WindowTest {
 protected:
  double offset() { return app.require("table").property("contentY").toDouble(); }
  bool moving() { return app.require("table").property("moving").toBool(); }

  // Until nothing is animated any more.
  void rest() {
    for (int frame = 0; frame < kMostFrames && (frame < 3 || clock->isRunning()); ++frame) {
      QCoreApplication::processEvents();
      clock->pass(kFrame);
      QEvent draw(QEvent::UpdateRequest);
      QCoreApplication::sendEvent(&app.window(), &draw);
      QCoreApplication::processEvents();
    }
    EXPECT_FALSE(clock->isRunning());
  }
  void fling(double pointsPerSecond) {
    QMetaObject::invokeMethod(&app.require("table"), "flick", Q_ARG(double, 0),
                              Q_ARG(double, pointsPerSecond));
    rest();
  }
  void turnWheel() {
    const QPointF at(200, 400);
    QWheelEvent event(at, app.window().mapToGlobal(at), {}, {0, -120}, {}, {}, Qt::NoScrollPhase,
                      false);
    event.setTimestamp(static_cast<quint64>(clock->now() + 300));
    QCoreApplication::sendEvent(&app.window(), &event);
    rest();
  }

  FrameClock* clock = nullptr;  // once the screen stands
};

// Some of these are then past their end, by less than anybody sees, and go back by themselves. Who
// was put back instead did not move at the next turn of the wheel.
TEST_F(FlingTest, AFlingThatEndsWithAFrameLeavesTheListToTheWheel) {
  signIn();
  FrameClock passing;
  clock = &passing;
  auto& list = app.require("table");
  const double length = list.property("contentHeight").toDouble() - list.height();
  for (int frames = 20; frames < 40; ++frames) {
    SCOPED_TRACE(frames);
    list.setProperty("contentY", length);
    rest();
    fling(2 * length / (0.001 * kFrame * frames));
    EXPECT_NEAR(offset(), 0, 0.001);
    EXPECT_FALSE(moving());
    turnWheel();
    EXPECT_GT(offset(), 10);
    EXPECT_FALSE(moving());
  }
}

}  // namespace
}  // namespace leafund
