#pragma once

#include <QPoint>

#include "tests/support/KeyText.h"
#include "tests/window/FingerFixture.h"

namespace leafund {

// Clicks, touches and keys that come faster than a user can look.
class PressFixture : public FingerTest {
 protected:
  // Presses and lifts the pointer that many times at one place, that many milliseconds apart by the
  // events, and each when the slide that the one before began has ended.
  void clickTimes(QPoint where, int times, int apart = 100,
                  Qt::MouseButton button = Qt::LeftButton) {
    for (int i = 0; i < times; ++i) {
      if (i > 0) app.settle();
      sendPointer(where, button, QEvent::MouseButtonPress);
      sendPointer(where, Qt::NoButton, QEvent::MouseButtonRelease, button);
      pass(apart);
    }
  }
  void clickTimes(const std::string& name, int times, int apart = 100) {
    app.settle();
    clickTimes(middleOf(name), times, apart);
  }
  void key(Qt::Key key, QEvent::Type type, bool repeat = false, Qt::KeyboardModifiers with = {}) {
    QKeyEvent event(type, key, with, keyText(key), repeat);
    event.setTimestamp(static_cast<quint64>(now_));
    QCoreApplication::sendEvent(&app.window(), &event);
  }
  void pass(int milliseconds) { now_ += milliseconds; }

  void openCampaign() {
    signIn();
    click("abc-0");
  }
  // A window of the height at which Yes comes to lie where Fund was.
  void putYesWhereFundWas() {
    const QSize size(390, 710);
    app.window().resize(size);
    ASSERT_TRUE(app.waitUntil([&] { return app.page()->height() == size.height(); }));
    app.settle();
  }
  std::string screen() {
    app.settle();
    return app.shown()->className();
  }

  void sendPointer(QPoint where, Qt::MouseButton held, QEvent::Type type,
                   Qt::MouseButton lifted = Qt::NoButton) {
    sendButtons(where, held, type, lifted == Qt::NoButton ? held : lifted);
  }
  void sendButtons(QPoint where, Qt::MouseButtons held, QEvent::Type type, Qt::MouseButton which) {
    qt_handleMouseEvent(&app.window(), where, app.window().mapToGlobal(where), held, which, type,
                        {}, now_);
    QCoreApplication::processEvents();
  }

 private:
  int now_ = 1'000'000;  // milliseconds
};

}  // namespace leafund
