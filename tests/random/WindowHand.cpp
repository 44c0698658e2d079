#include "tests/random/WindowHand.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QTest>
#include <QWheelEvent>
#include <algorithm>
#include <utility>

#include "tests/support/KeyText.h"

namespace leafund::random {

namespace {

// Milliseconds.
constexpr int kFrame = 16;
constexpr int kMostRest = 6400;  // until rest: a fling takes 2 to 3 seconds
constexpr int kHeldFor = 20;     // that a key is down
constexpr int kLookAhead = 60;   // real ones, after which the host prepares what may come

bool isPrintable(const QString& text) {
  return std::all_of(text.begin(), text.end(), [](QChar each) { return each.isPrint(); });
}

}  // namespace

void WindowHand::pointer(QEvent::Type type, QPointF where, Qt::MouseButtons buttons,
                         Qt::MouseButton button) {
  qt_handleMouseEvent(&window_, where, window_.mapToGlobal(where), buttons, button, type, {},
                      clock_.now());
}

void WindowHand::press(QPointF where, bool byTouch) {
  if (!byTouch) {
    pointer(QEvent::MouseMove, where, Qt::NoButton, Qt::NoButton);
    return pointer(QEvent::MouseButtonPress, where, Qt::LeftButton, Qt::LeftButton);
  }
  touch(Finger::Put, where);
}

void WindowHand::touch(Finger finger, QPointF where) {
  if (!screen_) screen_.reset(QTest::createTouchDevice());
  auto points = QTest::touchEvent(&window_, screen_.get(), false);
  if (thumb_) points.move(0, *thumb_);
  const int number = thumb_ ? 1 : 0;
  if (finger == Finger::Put) points.press(number, where.toPoint());
  if (finger == Finger::Moved) points.move(number, where.toPoint());
  if (finger == Finger::Lifted) points.release(number, where.toPoint());
  points.commit(false);
}

void WindowHand::putThumb(QPointF where) {
  touch(Finger::Put, where);
  thumb_ = where.toPoint();
}

void WindowHand::liftThumb() {
  const auto where = *std::exchange(thumb_, std::nullopt);
  touch(Finger::Lifted, where);
}

void WindowHand::pressBackButton(QPointF where) {
  pointer(QEvent::MouseButtonPress, where, Qt::BackButton, Qt::BackButton);
  pointer(QEvent::MouseButtonRelease, where, Qt::NoButton, Qt::BackButton);
}

void WindowHand::clickRight(QPointF where) {
  pointer(QEvent::MouseMove, where, Qt::NoButton, Qt::NoButton);
  pointer(QEvent::MouseButtonPress, where, Qt::RightButton, Qt::RightButton);
  pointer(QEvent::MouseButtonRelease, where, Qt::NoButton, Qt::RightButton);
}

void WindowHand::move(QPointF where, bool byTouch) {
  if (!byTouch) return pointer(QEvent::MouseMove, where, Qt::LeftButton, Qt::NoButton);
  touch(Finger::Moved, where);
}

void WindowHand::release(QPointF where, bool byTouch) {
  if (!byTouch) return pointer(QEvent::MouseButtonRelease, where, Qt::NoButton, Qt::LeftButton);
  touch(Finger::Lifted, where);
}

void WindowHand::wheel(QPointF where, int notches) {
  QWheelEvent event(where, window_.mapToGlobal(where), {}, {0, 120 * notches}, Qt::NoButton, {},
                    Qt::NoScrollPhase, false);
  event.setTimestamp(static_cast<quint64>(clock_.now()));
  QCoreApplication::sendEvent(&window_, &event);
}

void WindowHand::keyDown(int key, const QString& text, Qt::KeyboardModifiers modifiers,
                         bool repeated) {
  const QString said = text.isEmpty() ? keyText(key) : text;
  QKeyEvent event(QEvent::KeyPress, key, modifiers, said, repeated);
  event.setTimestamp(static_cast<quint64>(clock_.now()));
  QCoreApplication::sendEvent(&window_, &event);
}

void WindowHand::keyUp(int key, Qt::KeyboardModifiers modifiers) {
  clock_.pass(kHeldFor);
  QKeyEvent event(QEvent::KeyRelease, key, modifiers);
  event.setTimestamp(static_cast<quint64>(clock_.now()));
  QCoreApplication::sendEvent(&window_, &event);
  clock_.pass(kHeldFor);
}

void WindowHand::keyClick(int key, const QString& text, Qt::KeyboardModifiers modifiers) {
  keyDown(key, text, modifiers);
  keyUp(key, modifiers);
}

void WindowHand::write(const QString& text, Chance& how) {
  keyClick(Qt::Key_A, {}, Qt::ControlModifier);
  if (text.isEmpty()) return keyClick(Qt::Key_Delete);
  const auto way = how.below(3);
  if (way == 0 && QGuiApplication::focusObject() != nullptr) {
    if (how.percent(50)) {
      QInputMethodEvent composing(text.left(3), {});
      QCoreApplication::sendEvent(QGuiApplication::focusObject(), &composing);
    }
    QInputMethodEvent event;
    event.setCommitString(text);
    QCoreApplication::sendEvent(QGuiApplication::focusObject(), &event);
  } else if (way == 1 && text.size() < 40 && isPrintable(text)) {
    for (const QChar letter : text) keyClick(letter.toUpper().unicode(), letter);
  } else {
    QGuiApplication::clipboard()->setText(text);
    keyClick(Qt::Key_V, {}, Qt::ControlModifier);
  }
}

void WindowHand::draw() {
  QEvent frame(QEvent::UpdateRequest);
  QCoreApplication::sendEvent(&window_, &frame);
}

void WindowHand::frames(int count, Chance& how) {
  for (; count > 0; --count) {
    clock_.pass(static_cast<int>(how.between(1, 2 * kFrame)));
    QCoreApplication::processEvents();
    if (how.percent(75)) draw();
  }
}

bool WindowHand::rest(Chance& how) {
  const int length = how.percent(50) ? kFrame : static_cast<int>(how.between(4, 40));
  const int drawn = how.percent(75) ? 1 : 4;  // of so many frames one, as on a busy machine
  for (int frame = 0; frame * length < kMostRest; ++frame) {
    QCoreApplication::processEvents();
    clock_.pass(length);
    if (frame % drawn == 0 || !clock_.isRunning()) draw();
    QCoreApplication::processEvents();
    if (frame > 1 && !clock_.isRunning()) return true;
  }
  return false;
}

bool WindowHand::serve(Chance& how) {
  switch (how.below(8)) {
    case 0:
      return false;
    case 1:
      QCoreApplication::processEvents();
      return false;
    case 2:
    case 3:
      frames(static_cast<int>(how.between(1, 4)), how);
      return false;
    case 4:
      frames(static_cast<int>(how.between(5, 20)), how);
      return false;
    default:
      break;
  }
  if (!rest(how)) return false;
  if (!how.percent(20)) return true;
  QTest::qWait(kLookAhead);
  return rest(how);
}

}  // namespace leafund::random
