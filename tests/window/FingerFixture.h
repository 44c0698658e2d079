#pragma once

#include <QPointingDevice>
#include <memory>
#include <string>

#include "tests/window/WindowFixture.h"

namespace leafund {

// The application used with a finger that is put down, moved in small steps, and lifted.
class FingerTest : public WindowTest {
 protected:
  static constexpr int kSteps = 12;
  std::unique_ptr<QPointingDevice> finger_{QTest::createTouchDevice()};

  std::string screen() {
    app.settle();
    return app.shown()->className();
  }
  void openUpdate() {
    signIn();
    click("fundedTab");
    click("Funded-0");
    click("campaignUpdates");
  }

  void touch(QPoint from, QPoint to) {
    QTest::touchEvent(&app.window(), finger_.get()).press(0, from);
    for (int i = 1; i <= kSteps && from != to; ++i) {
      QTest::touchEvent(&app.window(), finger_.get()).move(0, from + (to - from) * i / kSteps);
      waitForFrame();  // moves within one frame are told as one
    }
    QTest::touchEvent(&app.window(), finger_.get()).release(0, to);
    QCoreApplication::processEvents();
  }
  void touch(QPoint where) { touch(where, where); }
  // Parts of a touch: what happens in the middle of it is told apart by them.
  void put(QPoint where) { QTest::touchEvent(&app.window(), finger_.get()).press(0, where); }
  void drawTo(QPoint where) {
    QTest::touchEvent(&app.window(), finger_.get()).move(0, where);
    waitForFrame();
  }
  void lift(QPoint where) {
    QTest::touchEvent(&app.window(), finger_.get()).release(0, where);
    QCoreApplication::processEvents();
  }
  // By another finger, while the first one rests: a point that QTest calls stationary is told to be
  // in the window's corner.
  void tapBeside(QPoint resting, QPoint where) {
    QTest::touchEvent(&app.window(), finger_.get()).move(0, resting).press(1, where);
    QTest::touchEvent(&app.window(), finger_.get()).move(0, resting).release(1, where);
    QCoreApplication::processEvents();
  }
  void touchItem(const std::string& name) {
    touch(middleOf(name));
    app.settle();
  }
  QPoint middleOf(const std::string& name) {
    auto& item = app.require(name);
    return item.mapToScene({item.width() / 2, item.height() / 2}).toPoint();
  }

  void waitForFrame() {
    bool drawn = false;
    QObject context;
    QObject::connect(&app.window(), &QQuickWindow::afterRendering, &context, [&] { drawn = true; });
    app.window().update();
    EXPECT_TRUE(app.waitUntil([&] { return drawn; }));
  }
};

}  // namespace leafund
