#pragma once

#include <QPointF>
#include <QPointingDevice>
#include <memory>
#include <optional>

#include "platform/qt/QtWindow.h"
#include "tests/random/Chance.h"
#include "tests/support/FrameClock.h"

namespace leafund::random {

// Pointer, finger and keys, as the system tells them to the window.
class WindowHand {
 public:
  explicit WindowHand(QtWindow& window) : window_(window) {}

  // Each answers at once; what it leads to has been delivered.
  void press(QPointF where, bool byTouch);
  void move(QPointF where, bool byTouch);
  void release(QPointF where, bool byTouch);
  // A finger that only rests, while others press and are lifted.
  void putThumb(QPointF where);
  void liftThumb();
  void pressBackButton(QPointF where);
  void clickRight(QPointF where);
  void wheel(QPointF where, int notches);
  void keyDown(int key, const QString& text = {}, Qt::KeyboardModifiers modifiers = {},
               bool repeated = false);
  void keyUp(int key, Qt::KeyboardModifiers modifiers = {});
  void keyClick(int key, const QString& text = {}, Qt::KeyboardModifiers modifiers = {});
  // In place of what is selected: by an input method, by pasting, or letter by letter.
  void write(const QString& text, Chance& how);

  // So many frames of a length drawn for each; some are withheld.
  void frames(int count, Chance& how);
  // Until nothing moves, or for so long that it never will; in frames of a length drawn for it, of
  // which most may be withheld.
  bool rest(Chance& how);
  // As much or as little as is drawn. True when nothing moves any more.
  bool serve(Chance& how);
  bool moving() const { return clock_.isRunning(); }
  int now() const { return clock_.now(); }

 private:
  void pointer(QEvent::Type type, QPointF where, Qt::MouseButtons buttons, Qt::MouseButton button);
  enum class Finger { Put, Moved, Lifted };
  void touch(Finger finger, QPointF where);
  void draw();

  QtWindow& window_;
  FrameClock clock_;
  std::unique_ptr<QPointingDevice> screen_;
  std::optional<QPoint> thumb_;
};

}  // namespace leafund::random
